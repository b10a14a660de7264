#pragma once

#include <string>

namespace horavex {

struct DayView;

/// What of a fast the countdown of a day goes to: the breaking of it at Maghrib, the end of the
/// meal before it at Fajr. Empty outside Ramadan and for the other prayers.
std::string FastOfFace(const DayView& day);

}  // namespace horavex
