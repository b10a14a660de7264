#include "sky/separation.h"

#include <cmath>

#include "engine/angle.h"

namespace horavex {

double Separation(const SkyPoint& one, const SkyPoint& other) {
    const double between = DegToRad(other.along - one.along);
    const double from = DegToRad(one.above);
    const double to = DegToRad(other.above);
    const double across = std::cos(to) * std::sin(between);
    const double beside =
        std::cos(from) * std::sin(to) - std::sin(from) * std::cos(to) * std::cos(between);
    const double along =
        std::sin(from) * std::sin(to) + std::cos(from) * std::cos(to) * std::cos(between);
    return RadToDeg(std::atan2(std::hypot(across, beside), along));
}

}  // namespace horavex
