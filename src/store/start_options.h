#pragma once

#include "store/options.h"

namespace horavex::option {

/// 1: a second start brings the running program to the front and ends, in place of saying that
/// there is one.
inline constexpr WholeOption kShowRunning = {"Show Running", 0, 1, 0};

}  // namespace horavex::option
