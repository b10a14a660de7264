#pragma once

#include <string>

#include "terminal/screen/cells.h"

namespace horavex {

inline constexpr int kDigitRows = 5;

/// Hours, minutes and seconds of a countdown: "04:31:09".
std::string CountdownDigits(int seconds);

/// Columns of digits and colons in large.
int WidthOfBigDigits(const std::string& digits);

/// Draws them, five rows high.
void PutBigDigits(Cells& cells, CellPlace at, const std::string& digits, const Look& look);

}  // namespace horavex
