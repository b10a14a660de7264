#include "lib/room.h"

#include <cmath>
#include <numeric>

namespace horavex {
namespace {

using testing::Each;

double EnergyOf(const Sound& sound, double from, double to) {
    double sum = 0.0;
    for (std::size_t i = MomentsIn(from); i < MomentsIn(to); ++i) {
        sum += sound[i] * sound[i];
    }
    return sum;
}

/// The room's answer to a clap in the middle.
StereoSound Clap() {
    Sound clap(100, 0.0);
    clap[0] = 1.0;
    return PlayInRoom({clap, clap}, 3.0);
}

TEST(Room, SoundItselfComesFirstAndUnchanged) {
    const StereoSound sound = Clap();
    EXPECT_EQ(sound.left.size(), 100U + MomentsIn(3.0));
    EXPECT_EQ(sound.left[0], 1.0);
    EXPECT_EQ(EnergyOf(sound.left, 0.001, 0.022), 0.0);
    EXPECT_GT(EnergyOf(sound.left, 0.022, 0.2), 0.0);
}

TEST(Room, AnswerDiesAwaySteadily) {
    const StereoSound sound = Clap();
    for (double at = 0.2; at < 2.0; at += 0.4) {
        const double fall =
            EnergyOf(sound.left, at, at + 0.4) / EnergyOf(sound.left, at + 0.4, at + 0.8);
        EXPECT_GT(fall, 5.0) << at;  // some 10 dB
        EXPECT_LT(fall, 60.0) << at;
    }
}

TEST(Room, SidesAnswerDifferently) {
    const StereoSound sound = Clap();
    EXPECT_NE(sound.left, sound.right);
    EXPECT_NEAR(EnergyOf(sound.left, 0.02, 3.0) / EnergyOf(sound.right, 0.02, 3.0), 1.0, 0.4);
}

TEST(Room, SilenceStaysSilent) {
    const StereoSound sound = PlayInRoom({Sound(1000, 0.0), Sound(1000, 0.0)}, 1.0);
    EXPECT_THAT(sound.left, Each(0.0));
    EXPECT_THAT(sound.right, Each(0.0));
}

}  // namespace
}  // namespace horavex
