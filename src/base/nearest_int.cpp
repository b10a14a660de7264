#include "base/nearest_int.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/rounding.h"

namespace horavex {

int NearestInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(RoundHalfEven(std::clamp(value, kLowest, kHighest)));
}

}  // namespace horavex
