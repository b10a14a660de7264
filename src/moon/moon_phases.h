#pragma once

#include "moon/moon_date.h"

namespace horavex {

// The four principal phases of the present year as rows of text, 13 each, at twelfths of the year:
// in some years the steps leave one lunation out, and the first row may lie in the December before,
// the last in the January or February after. "6 January 2000, 20hrs 14min"; the rows of all but the
// new moon have a second blank behind the comma. Instants are in dynamical time, without a
// correction to universal time. Accuracy: two minutes or so, through the estimate in T and fourteen
// planetary terms where the book has one squared term.

extern MoonRows NewMoonRows;
extern MoonRows FirstQuarterRows;
extern MoonRows FullMoonRows;
extern MoonRows LastQuarterRows;

// Each fills its table for the year of the present date and the zone of the settings window's box.
// They throw TypeMismatchFault for a zone that is no number.
void ComputeNewMoonRows();
void ComputeFirstQuarterRows();
void ComputeFullMoonRows();
void ComputeLastQuarterRows();

}  // namespace horavex
