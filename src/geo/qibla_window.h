#pragma once

namespace horavex {

/// Opens the qibla window in front of the face and returns when it is closed. Throws FileFault
/// without the table of texts, and BoundsFault for an Arabic window whose sentence has fewer words
/// than the rewrite looks at.
void ShowQibla();

}  // namespace horavex
