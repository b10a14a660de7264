#pragma once

#include <string>

#include "engine/day_view.h"

namespace horavex {

/// The name of the next prayer and its time, in the current language.
std::string NextPrayerSentence(const NextMoment& next);

/// Hours, minutes and seconds without leading zeros, whole days dropped: "5:0:12".
std::string RemainingText(double seconds);

}  // namespace horavex
