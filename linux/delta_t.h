#pragma once

#include "base/date.h"

namespace horavex {

/// Seconds by which the even time of the orbits (Terrestrial Time) is ahead of Universal Time.
/// Measured from 1900 to 2025 and good to half a second there. What is to come is an extrapolation,
/// about 2 s off in 2030 and two minutes in 2100 by the spread of what others extrapolate; as
/// much is a phase told late or early, a rise or a set only by a thirtieth of it.
double DeltaT(Date universal);

}  // namespace horavex
