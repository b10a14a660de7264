#include "lib/mastering.h"

#include <cmath>
#include <numbers>

#include "base/fault.h"
#include "lib/loudness_meter.h"

namespace horavex {
namespace {

using testing::Each;

StereoSound Tone(double seconds) {
    Sound sound = Silence(seconds);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = 3.0 * std::sin(2.0 * std::numbers::pi * 440.0 * TimeOf(i));
    }
    return {sound, sound};
}

TEST(Mastering, SoundIsAsLoudAsWanted) {
    EXPECT_NEAR(GatedLoudness(Master(Tone(8.0), 8.0, 2.0)), kWantedLoudness, 0.01);
}

TEST(Mastering, ShortSoundIsMeasuredWithoutGates) {
    EXPECT_NEAR(UngatedLoudness(Master(Tone(1.5), 1.5, 1.0)), kWantedLoudness, 0.01);
}

TEST(Mastering, SoundIsCutToItsLengthBetweenTwoSilences) {
    const StereoSound sound = Master(Tone(8.0), 4.0, 1.0);
    EXPECT_NEAR(TimeOf(sound.left.size()), 4.06, 0.001);
    EXPECT_THAT(Sound(sound.left.begin(), sound.left.begin() + 1323), Each(0.0));
    EXPECT_THAT(Sound(sound.right.end() - 1323, sound.right.end()), Each(0.0));
}

TEST(Mastering, SoundFadesWithoutACorner) {
    const StereoSound sound = Master(Tone(8.0), 8.0, 2.0);
    const auto loudest = [&](double from) {
        double peak = 0.0;
        for (std::size_t i = MomentsIn(from); i < MomentsIn(from + 0.1); ++i) {
            peak = std::max(peak, std::abs(sound.left[i]));
        }
        return peak;
    };
    EXPECT_NEAR(loudest(6.98) / loudest(4.0), 0.54, 0.05);
    EXPECT_LT(loudest(7.9) / loudest(4.0), 0.02);
}

TEST(Mastering, WhatWouldPeakTooHighIsRefused) {
    StereoSound sound = Tone(8.0);
    sound.left[200'000] = 60.0;
    EXPECT_THROW(Master(sound, 8.0, 2.0), BoundsFault);
}

TEST(Mastering, SilenceIsRefused) {
    EXPECT_THROW(Master({Silence(4.0), Silence(4.0)}, 4.0, 1.0), BoundsFault);
}

}  // namespace
}  // namespace horavex
