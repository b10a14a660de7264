#pragma once

#include <cstdint>

namespace horavex {

/// Program-wide flags are 16-bit: 0 is false, -1 is true.
inline constexpr std::int16_t kFalse = 0;
inline constexpr std::int16_t kTrue = -1;

/// Narrows to a 16-bit field. Throws OverflowFault outside -32768 to 32767.
std::int16_t ToInt16(std::int64_t value);

/// Rounds half to even, then narrows to a 16-bit field. Throws OverflowFault outside the range
/// and for a value that is no number.
std::int16_t RoundToInt16(double value);

/// Truncates toward zero, then narrows to a 16-bit field. Throws as RoundToInt16 does.
std::int16_t TruncateToInt16(double value);

/// Sum, difference and product of two 16-bit fields, kept 16-bit. Throw OverflowFault.
std::int16_t AddInt16(std::int16_t a, std::int16_t b);
std::int16_t SubtractInt16(std::int16_t a, std::int16_t b);
std::int16_t MultiplyInt16(std::int16_t a, std::int16_t b);

}  // namespace horavex
