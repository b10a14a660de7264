#pragma once

#include "store/angle_band.h"
#include "store/options.h"

namespace horavex {

/// Within which the angles of the windows move: the band of the latitude; with a rule of high
/// latitudes, which makes up for every night without twilight, 4 to 20 degrees anywhere.
AngleLimits AngleRangeUnder(HighLatitudeRule rule, const AngleLimits& band);

/// That of the working settings.
AngleLimits AngleRange();

}  // namespace horavex
