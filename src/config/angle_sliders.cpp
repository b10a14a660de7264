#include "config/angle_sliders.h"

#include <cmath>

#include "base/rounding.h"

namespace horavex {

namespace {

constexpr double kQuarter = 0.25;  // degrees a step of the fine slider

}  // namespace

double AngleOnSliders(const ScrollBar& whole, const Slider& quarters) {
    return whole.Value() + kQuarter * quarters.Value();
}

void MoveSliders(double angle, ScrollBar& whole, Slider& quarters) {
    const double floor = std::floor(angle);
    whole.SetValue(static_cast<int>(floor));
    quarters.SetValue(static_cast<int>(RoundHalfEven(std::fabs(angle - floor) / kQuarter)));
}

}  // namespace horavex
