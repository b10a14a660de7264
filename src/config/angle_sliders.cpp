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
    // The degree above the range is its end and four quarters.
    const bool topmost = angle == whole.Max() + 1.0;
    const double floor = topmost ? whole.Max() : std::floor(angle);
    whole.SetValue(NearestInt(floor));
    quarters.SetValue(NearestInt(std::fabs(angle - floor) / kQuarter));
}

}  // namespace horavex
