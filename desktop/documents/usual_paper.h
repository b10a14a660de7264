#pragma once

#include <QPageSize>

namespace horavex {

/// A4 or Letter by the height of the sheet, in millimetres.
QPageSize PaperOfHeight(int height);

/// A4 or Letter, whichever is the paper of the user's locale (LC_PAPER).
QPageSize UsualPaper();

}  // namespace horavex
