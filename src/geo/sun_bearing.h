#pragma once

#include <optional>

#include "base/date.h"

namespace horavex {

/// Where the sun stands at a moment of the local clock, seen from the engine's place: radians from
/// north, positive to the east, -Pi to Pi; nothing while it is below the horizon. The zone and the
/// daylight hour are the accepted settings'. Accuracy: a few minutes of arc, half a degree in years
/// whose sun runs a day ahead (engine/sun.h); less where the sun stands near the zenith.
std::optional<double> SunBearing(Date now);

}  // namespace horavex
