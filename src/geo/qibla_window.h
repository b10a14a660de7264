#pragma once

namespace horavex {

/// frmMain's own computation of the qibla, shown in its label.
void Qibla();

/// Opens the qibla window in front of the face and returns when it is closed. Throws FileFault
/// without the table of texts.
void ShowQibla();

}  // namespace horavex
