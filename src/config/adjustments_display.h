#pragma once

#include "config/adjustments.h"

namespace horavex {

// What the window "Adjustments" shows, in the words of the current pack.

/// Fills its lists. Of the methods the one that is usual in the accepted country comes first.
void FillAdjustmentLists();

/// The method in a row of the list; null for the first one, "custom".
const Authority* MethodInRow(int row);

/// Shows adjustments in all controls, with what they mean, and today as they would have it. The
/// method on view stays as long as it says the same.
void ShowAdjustments(const Adjustments& adjustments);

/// Bars have whole numbers: of tenths of a degree.
inline constexpr double kStepsPerDegree = 10.0;

/// The row in the middle of the list of days that are added.
inline constexpr int kNoDaysAdded = 2;

}  // namespace horavex
