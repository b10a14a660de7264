#include "sky/visibility.h"

namespace horavex {

namespace {

/// Degrees that a crescent may stand lower the wider it is; both papers have the same curve.
double Relief(double width) {
    return ((0.1018 * width - 0.7319) * width + 6.3226) * width;
}

}  // namespace

Verdict YallopVerdict(double arcOfVision, double width) {
    const double q = (arcOfVision - (11.8371 - Relief(width))) / 10.0;
    // Above each limit lies the class; the last of them has none below.
    constexpr double kLimits[] = {0.216, -0.014, -0.160, -0.232, -0.293};
    char letter = 'A';
    for (const double limit : kLimits) {
        letter = static_cast<char>(letter + (q > limit ? 0 : 1));
    }
    return {q, letter};
}

Verdict OdehVerdict(double arcOfVision, double width) {
    const double v = arcOfVision - (7.1651 - Relief(width));
    constexpr double kLimits[] = {5.65, 2.0, -0.96};  // each belongs to the class above
    char letter = 'A';
    for (const double limit : kLimits) {
        letter = static_cast<char>(letter + (v >= limit ? 0 : 1));
    }
    return {v, letter};
}

}  // namespace horavex
