#include "lib/loudness_meter.h"

#include <cmath>
#include <numbers>

namespace horavex {
namespace {

Sound Sine(double pitch, double seconds, double peak) {
    Sound sound = Silence(seconds);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = peak * std::sin(2.0 * std::numbers::pi * pitch * TimeOf(i));
    }
    return sound;
}

double Amplitude(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

StereoSound Both(const Sound& sound) {
    return {sound, sound};
}

/// Sines of 1 kHz in both channels, behind one another: peaks in dB, seconds.
StereoSound Sequence(const std::vector<std::pair<double, double>>& parts) {
    Sound all;
    for (const auto& [decibels, seconds] : parts) {
        const Sound part = Sine(1000.0, seconds, Amplitude(decibels));
        all.insert(all.end(), part.begin(), part.end());
    }
    return Both(all);
}

// ITU-R BS.1770-4, annex 1: a sine of 997 Hz at full scale in one channel reads -3.01.
TEST(LoudnessMeter, SineOfFullScaleInOneChannelIsAtMinusThree) {
    const Sound sine = Sine(997.0, 5.0, 1.0);
    const StereoSound sound{sine, Sound(sine.size(), 0.0)};
    EXPECT_NEAR(GatedLoudness(sound), -3.01, 0.02);
    EXPECT_NEAR(UngatedLoudness(sound), -3.01, 0.02);
}

// EBU Tech 3341, minimum requirements test signals 1 to 5, each to 0.1 LU; shorter where the
// answer is the same.
TEST(LoudnessMeter, ReadsTheTestSignalsOfBroadcasters) {
    EXPECT_NEAR(GatedLoudness(Sequence({{-23.0, 20.0}})), -23.0, 0.1);
    EXPECT_NEAR(GatedLoudness(Sequence({{-33.0, 20.0}})), -33.0, 0.1);
    EXPECT_NEAR(GatedLoudness(Sequence({{-36.0, 10.0}, {-23.0, 60.0}, {-36.0, 10.0}})), -23.0, 0.1);
    EXPECT_NEAR(GatedLoudness(Sequence(
                    {{-72.0, 10.0}, {-36.0, 10.0}, {-23.0, 60.0}, {-36.0, 10.0}, {-72.0, 10.0}})),
                -23.0, 0.1);
    EXPECT_NEAR(GatedLoudness(Sequence({{-26.0, 20.0}, {-20.0, 20.1}, {-26.0, 20.0}})), -23.0, 0.1);
}

TEST(LoudnessMeter, BassCountsLessAndTrebleMore) {
    const auto loudness = [](double pitch) { return GatedLoudness(Both(Sine(pitch, 2.0, 0.5))); };
    EXPECT_LT(loudness(40.0), loudness(997.0) - 5.0);
    EXPECT_NEAR(loudness(6000.0), loudness(997.0) + 3.3, 0.3);
}

TEST(LoudnessMeter, SilenceAndWhatIsShorterThanABlockHaveNoGatedLoudness) {
    EXPECT_EQ(GatedLoudness(Both(Silence(5.0))), kNoLoudness);
    EXPECT_EQ(GatedLoudness(Both(Sine(997.0, 0.3, 1.0))), kNoLoudness);
    EXPECT_EQ(UngatedLoudness(Both(Silence(5.0))), kNoLoudness);
    EXPECT_EQ(UngatedLoudness(StereoSound{}), kNoLoudness);
    EXPECT_NEAR(UngatedLoudness(Both(Sine(997.0, 0.3, 1.0))), 0.0, 0.1);
}

// A quarter of the rate, an eighth of a turn late: every sample lies 3 dB below the peak.
TEST(LoudnessMeter, PeakBetweenTheSamplesIsFound) {
    Sound sound = Silence(0.1);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = 0.5 * std::sin(std::numbers::pi * (static_cast<double>(i) / 2.0 + 0.25));
    }
    EXPECT_NEAR(TruePeak({sound, Sound(sound.size(), 0.0)}), -6.02, 0.4);
    EXPECT_NEAR(TruePeak({Sound(sound.size(), 0.0), sound}), -6.02, 0.4);
    EXPECT_EQ(TruePeak(Both(Silence(0.1))), kNoLoudness);
}

}  // namespace
}  // namespace horavex
