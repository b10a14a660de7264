#pragma once

#include <string>

#include "engine/day_view.h"

namespace horavex {

/// A day as lines for people, the next prayer set off. highlight: with the terminal's marks.
std::string DayText(const DayView& day, bool highlight);

}  // namespace horavex
