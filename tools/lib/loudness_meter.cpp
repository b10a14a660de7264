#include "lib/loudness_meter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

namespace horavex {

namespace {

// A filter of second order, normalised to a0 = 1.
struct Biquad {
    double b0, b1, b2, a1, a2;

    void Run(Sound& sound) const {
        double in1 = 0.0, in2 = 0.0, out1 = 0.0, out2 = 0.0;
        for (double& value : sound) {
            const double out = b0 * value + b1 * in1 + b2 * in2 - a1 * out1 - a2 * out2;
            in2 = in1;
            in1 = value;
            out2 = out1;
            out1 = out;
            value = out;
        }
    }
};

// BS.1770 prints the two filters for 48 kHz alone; these corners, qualities and gains give the
// printed coefficients there (to some 1e-5) and serve any rate.
double Warped(double corner) {
    return std::tan(std::numbers::pi * corner / kPlayedRate);
}

/// The head's: treble by 4 dB up.
Biquad Shelf() {
    constexpr double kQuality = 0.7071752369554196;
    const double k = Warped(1681.974450955533);
    const double high = std::pow(10.0, 3.999843853973347 / 20.0);
    const double middle = std::pow(high, 0.4996667741545416);
    const double a0 = 1.0 + k / kQuality + k * k;
    return {(high + middle * k / kQuality + k * k) / a0, 2.0 * (k * k - high) / a0,
            (high - middle * k / kQuality + k * k) / a0, 2.0 * (k * k - 1.0) / a0,
            (1.0 - k / kQuality + k * k) / a0};
}

/// Bass off below some 40 Hz; its numerator is not normalised, as the recommendation prints it.
Biquad HighPass() {
    constexpr double kQuality = 0.5003270373238773;
    const double k = Warped(38.13547087602444);
    const double a0 = 1.0 + k / kQuality + k * k;
    return {1.0, -2.0, 1.0, 2.0 * (k * k - 1.0) / a0, (1.0 - k / kQuality + k * k) / a0};
}

Sound Weighted(Sound sound) {
    Shelf().Run(sound);
    HighPass().Run(sound);
    return sound;
}

/// Energies of a weighted sound in quarters of a block, both channels together.
constexpr std::size_t kQuarter = kPlayedRate / 10;

double EnergyOf(const Sound& sound, std::size_t from, std::size_t count) {
    const auto begin = sound.begin() + static_cast<std::ptrdiff_t>(from);
    return std::inner_product(begin, begin + static_cast<std::ptrdiff_t>(count), begin, 0.0);
}

double LoudnessOf(double power) {
    return power <= 0.0 ? kNoLoudness : -0.691 + 10.0 * std::log10(power);
}

/// Mean powers of all blocks.
std::vector<double> BlocksOf(const StereoSound& sound) {
    const Sound left = Weighted(sound.left);
    const Sound right = Weighted(sound.right);
    std::vector<double> quarters;
    for (std::size_t at = 0; at + kQuarter <= left.size(); at += kQuarter) {
        quarters.push_back(EnergyOf(left, at, kQuarter) + EnergyOf(right, at, kQuarter));
    }
    std::vector<double> blocks;
    for (std::size_t i = 0; i + 4 <= quarters.size(); ++i) {
        blocks.push_back((quarters[i] + quarters[i + 1] + quarters[i + 2] + quarters[i + 3]) /
                         (4.0 * kQuarter));
    }
    return blocks;
}

/// The mean power of the blocks that are louder than the gate.
double MeanAbove(const std::vector<double>& blocks, double gate) {
    double sum = 0.0;
    int count = 0;
    for (const double block : blocks) {
        if (LoudnessOf(block) > gate) {
            sum += block;
            ++count;
        }
    }
    return count == 0 ? 0.0 : sum / count;
}

// Four times oversampled by a windowed sinc, as many taps to a phase as the recommendation has.
constexpr int kPhases = 4;
constexpr int kReach = 6;  // samples on either side

using Taps = std::array<double, 2 * kReach>;

Taps TapsOf(int phase) {
    Taps taps{};
    for (int i = 0; i < 2 * kReach; ++i) {
        const double at = i - kReach + 1 - static_cast<double>(phase) / kPhases;
        const double angle = std::numbers::pi * at;
        const double window = 0.5 + 0.5 * std::cos(angle / kReach);
        taps[static_cast<std::size_t>(i)] = at == 0.0 ? 1.0 : window * std::sin(angle) / angle;
    }
    return taps;
}

double PeakOf(const Sound& sound) {
    Sound padded(kReach, 0.0);
    padded.insert(padded.end(), sound.begin(), sound.end());
    padded.resize(padded.size() + kReach, 0.0);
    double peak = 0.0;
    for (int phase = 0; phase < kPhases; ++phase) {
        const Taps taps = TapsOf(phase);
        for (auto at = padded.begin(); at + 2 * kReach <= padded.end(); ++at) {
            peak = std::max(peak, std::abs(std::inner_product(taps.begin(), taps.end(), at, 0.0)));
        }
    }
    return peak;
}

}  // namespace

double GatedLoudness(const StereoSound& sound) {
    constexpr double kAbsoluteGate = -70.0;  // LUFS
    constexpr double kRelativeGate = -10.0;  // LU below what passed the first
    const std::vector<double> blocks = BlocksOf(sound);
    const double loudness = LoudnessOf(MeanAbove(blocks, kAbsoluteGate));
    return LoudnessOf(MeanAbove(blocks, std::max(loudness + kRelativeGate, kAbsoluteGate)));
}

double UngatedLoudness(const StereoSound& sound) {
    const std::size_t count = sound.left.size();
    return count == 0 ? kNoLoudness
                      : LoudnessOf((EnergyOf(Weighted(sound.left), 0, count) +
                                    EnergyOf(Weighted(sound.right), 0, count)) /
                                   static_cast<double>(count));
}

double TruePeak(const StereoSound& sound) {
    const double peak = std::max(PeakOf(sound.left), PeakOf(sound.right));
    return peak <= 0.0 ? kNoLoudness : 20.0 * std::log10(peak);
}

}  // namespace horavex
