#pragma once

namespace horavex {

/// Whether the terminal of the standard output, as TERM names it, can move its cursor.
bool CanMoveCursor();

}  // namespace horavex
