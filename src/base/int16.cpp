#include "base/int16.h"

#include <cmath>
#include <limits>

#include "base/fault.h"
#include "base/rounding.h"

namespace horavex {

namespace {

constexpr double kLowest = std::numeric_limits<std::int16_t>::min();
constexpr double kHighest = std::numeric_limits<std::int16_t>::max();

std::int16_t Narrow(double whole) {
    // Written so that a NaN fails it too.
    if (!(whole >= kLowest && whole <= kHighest)) {
        throw OverflowFault("a number does not fit a 16-bit field");
    }
    return static_cast<std::int16_t>(whole);
}

}  // namespace

std::int16_t ToInt16(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw OverflowFault("a number does not fit a 16-bit field");
    }
    return static_cast<std::int16_t>(value);
}

std::int16_t RoundToInt16(double value) {
    return Narrow(RoundHalfEven(value));
}

std::int16_t TruncateToInt16(double value) {
    return Narrow(std::trunc(value));
}

std::int16_t AddInt16(std::int16_t a, std::int16_t b) {
    return ToInt16(std::int64_t{a} + b);
}

std::int16_t SubtractInt16(std::int16_t a, std::int16_t b) {
    return ToInt16(std::int64_t{a} - b);
}

std::int16_t MultiplyInt16(std::int16_t a, std::int16_t b) {
    return ToInt16(std::int64_t{a} * b);
}

}  // namespace horavex
