#pragma once

#include <cstdint>

namespace horavex {

/// Program-wide flags are 16-bit: 0 is false, -1 is true.
inline constexpr std::int16_t kFalse = 0;
inline constexpr std::int16_t kTrue = -1;

}  // namespace horavex
