#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace horavex {

/// Moments a second of all that is played here.
inline constexpr int kPlayedRate = 44100;

/// One channel of sound, full scale at 1.
using Sound = std::vector<double>;

/// Two channels of one length.
struct StereoSound {
    Sound left;
    Sound right;
};

/// How many moments a span of seconds has, rounded up.
std::size_t MomentsIn(double seconds);

inline double TimeOf(std::size_t moment) {
    return static_cast<double>(moment) / kPlayedRate;
}

Sound Silence(double seconds);

/// From 0 at 0 to 1 at the length, and 1 behind it, without a corner.
double Swell(double at, double length);

/// The pitch that many cents above another.
double Above(double pitch, double cents);

/// Noise from -1 to 1, the same for the same seed on every machine.
class Noise {
public:
    explicit Noise(std::uint32_t seed) : state_(seed) {}

    /// The linear congruential generator of "Numerical Recipes", ranqd1.
    double Next() {
        state_ = 1664525U * state_ + 1013904223U;
        return static_cast<double>(state_) / 2147483648.0 - 1.0;
    }

private:
    std::uint32_t state_;
};

/// Lets what is slower than its corner pass.
class Softener {
public:
    explicit Softener(double corner);  // hertz

    double operator()(double in) {
        held_ += share_ * (in - held_);
        return held_;
    }

private:
    double share_;
    double held_ = 0.0;
};

/// Lets a band pass, its middle as loud as it comes.
class Resonator {
public:
    Resonator(double middle, double width);  // hertz

    double operator()(double in);

private:
    double gain_;
    double near_;
    double far_;
    double in1_ = 0.0, in2_ = 0.0, out1_ = 0.0, out2_ = 0.0;
};

}  // namespace horavex
