#pragma once

#include "forms/range.h"

namespace horavex {

// An angle stands on two controls: a scroll bar of whole degrees and a slider of quarters, whose
// last step is a whole degree again.

/// The angle that a pair shows, degrees.
double AngleOnSliders(const ScrollBar& whole, const Slider& quarters);

/// Puts an angle on a pair; what lies outside its range is clipped.
void MoveSliders(double angle, ScrollBar& whole, Slider& quarters);

}  // namespace horavex
