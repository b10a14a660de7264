#pragma once

#include "store/options.h"

namespace horavex::option {

/// 1: the distance window begins with the accepted city as city A, and in kilometres.
inline constexpr WholeOption kDistanceFromHere = {"Distance From Here", 0, 1, 0};

}  // namespace horavex::option
