#pragma once

#include <optional>

#include "base/date.h"

namespace horavex {

/// Where the sun stands at a moment of the local clock, seen from the engine's place: radians from
/// north, positive to the east, -Pi to Pi; nothing while it is below the horizon. The zone and the
/// daylight hour are the working settings'. Needs the constants of the moment's year. Accuracy:
/// that of the engine's sun, a quarter of a degree.
std::optional<double> SunBearing(Date now);

}  // namespace horavex
