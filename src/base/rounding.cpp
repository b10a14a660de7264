#include "base/rounding.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace horavex {

double RoundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) {
        return below;
    }
    if (rest > 0.5) {
        return below + 1.0;
    }
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

double RoundToPlaces(double value, int places) {
    double scale = 1.0;
    for (int i = 0; i < places; ++i) {
        scale *= 10.0;
    }
    return RoundHalfEven(value * scale) / scale;
}

int NearestInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(RoundHalfEven(std::clamp(value, kLowest, kHighest)));
}

}  // namespace horavex
