#pragma once

namespace horavex {

/// Opens the qibla window in front of the face and returns when it is closed. Throws FileFault
/// without the table of texts.
void ShowQibla();

}  // namespace horavex
