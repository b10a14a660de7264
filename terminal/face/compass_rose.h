#pragma once

#include "terminal/screen/cells.h"

namespace horavex {

inline constexpr int kRoseRows = 9;
inline constexpr int kRoseColumns = 21;

/// A compass of characters: a dial with a mark at the north, and the direction from its middle.
/// degrees: from north, positive to the east.
void PutCompassRose(Cells& cells, CellPlace at, double degrees);

}  // namespace horavex
