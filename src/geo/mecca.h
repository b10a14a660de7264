#pragma once

#include "geo/distance.h"

namespace horavex {

/// Mecca as the distance window knows it, 21 degrees 25 minutes north and 39 degrees 49 minutes
/// east: rounded to the minute, and so a little off the place that the qibla points at.
inline const CoordinateTexts kMeccaLatitudeTexts = {"21", "25", "0"};
inline const CoordinateTexts kMeccaLongitudeTexts = {"39", "49", "0"};

}  // namespace horavex
