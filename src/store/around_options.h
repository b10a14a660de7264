#pragma once

#include "store/options.h"

namespace horavex::option {

/// 1: windows and documents tell times around the day: imsak, Duha, the parts of the night.
inline constexpr WholeOption kAroundTheDay = {"Around The Day", 0, 1, 0};

/// Minutes from imsak to Fajr.
inline constexpr WholeOption kImsakMinutes = {"Imsak Minutes", 0, 60, 10};

}  // namespace horavex::option
