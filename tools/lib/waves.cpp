#include "lib/waves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace horavex {

std::size_t MomentsIn(double seconds) {
    return static_cast<std::size_t>(std::ceil(seconds * kPlayedRate));
}

Sound Silence(double seconds) {
    return Sound(MomentsIn(seconds), 0.0);
}

double Swell(double at, double length) {
    return at >= length ? 1.0 : 0.5 - 0.5 * std::cos(std::numbers::pi * std::max(at, 0.0) / length);
}

double Above(double pitch, double cents) {
    return pitch * std::exp2(cents / 1200.0);
}

Softener::Softener(double corner)
    : share_(1.0 - std::exp(-2.0 * std::numbers::pi * corner / kPlayedRate)) {}

// R. Bristow-Johnson, "Cookbook formulae for audio EQ biquad filter coefficients", the band-pass
// whose peak is 0 dB.
Resonator::Resonator(double middle, double width) {
    const double turn = 2.0 * std::numbers::pi * middle / kPlayedRate;
    const double alpha = std::sin(turn) * width / (2.0 * middle);
    gain_ = alpha / (1.0 + alpha);
    near_ = 2.0 * std::cos(turn) / (1.0 + alpha);
    far_ = -(1.0 - alpha) / (1.0 + alpha);
}

double Resonator::operator()(double in) {
    const double out = gain_ * (in - in2_) + near_ * out1_ + far_ * out2_;
    in2_ = in1_;
    in1_ = in;
    out2_ = out1_;
    out1_ = out;
    return out;
}

}  // namespace horavex
