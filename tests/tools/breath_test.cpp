#include "lib/breath.h"

#include <cmath>

namespace horavex {
namespace {

using testing::Each;
using testing::SizeIs;

double At(const Sound& sound, double seconds) {
    return sound[MomentsIn(seconds)];
}

TEST(Breath, RestBeginsANewOne) {
    const std::vector<Note> notes = {{0.0, 1.0, 200.0}, {1.0, 1.0, 220.0}, {2.5, 1.0, 200.0}};
    const auto breaths = BreathsOf(notes);
    ASSERT_THAT(breaths, SizeIs(2));
    EXPECT_THAT(breaths[0], SizeIs(2));
    EXPECT_EQ(breaths[1].front().start, 2.5);
}

TEST(Breath, LastsForItsNotesAndTheRelease) {
    const std::vector<Note> notes = {{3.0, 1.0, 200.0}, {4.0, 1.0, 220.0}};
    const Breath breath(notes);
    EXPECT_EQ(breath.Size(), MomentsIn(2.0 + kRelease));
    EXPECT_EQ(breath.strength.size(), breath.Size());
    EXPECT_EQ(breath.calm.size(), breath.Size());
}

TEST(Breath, NoteGlidesOutOfTheOneBeforeIt) {
    const std::vector<Note> notes = {{0.0, 1.0, 200.0}, {1.0, 1.0, 300.0}};
    const Breath breath(notes);
    EXPECT_EQ(At(breath.pitch, 0.9), 200.0);
    EXPECT_NEAR(At(breath.pitch, 1.035), 245.0, 2.0);  // half way for the ear
    EXPECT_NEAR(At(breath.pitch, 1.1), 300.0, 1e-9);
}

TEST(Breath, SlideTakesItsTimeAndNoPitchIsJumpedTo) {
    const std::vector<Note> notes = {{0.0, 1.0, 200.0}, {1.0, 2.0, 300.0, 400.0}};
    const Breath breath(notes);
    EXPECT_GT(At(breath.pitch, 1.15), 370.0);
    EXPECT_NEAR(At(breath.pitch, 1.95), 300.0, 1e-9);
    for (std::size_t i = 1; i < breath.Size(); ++i) {
        ASSERT_LT(std::abs(breath.pitch[i] - breath.pitch[i - 1]), 0.2) << TimeOf(i);
    }
}

TEST(Breath, StrengthGoesOverIntoTheNext) {
    const std::vector<Note> notes = {{0.0, 1.0, 200.0, 200.0, 0.4}, {1.0, 1.0, 200.0, 200.0, 0.8}};
    const Breath breath(notes);
    EXPECT_EQ(At(breath.strength, 0.5), 0.4);
    EXPECT_NEAR(At(breath.strength, 1.125), 0.6, 0.01);
    EXPECT_NEAR(At(breath.strength, 1.5), 0.8, 1e-9);
}

TEST(Breath, VibratoWaitsAndShortNotesHaveNone) {
    const std::vector<Note> one = {{0.0, 2.0, 200.0}};
    const Breath slow(one);
    EXPECT_LT(At(slow.calm, 0.3), 0.01);
    EXPECT_GT(At(slow.calm, 1.8), 0.95);
    const std::vector<Note> many = {{0.0, 0.4, 200.0}, {0.4, 0.4, 220.0}};
    EXPECT_THAT(Breath(many).calm, Each(0.0));
}

}  // namespace
}  // namespace horavex
