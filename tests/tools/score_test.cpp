#include "lib/score.h"

#include <cmath>
#include <fstream>

#include "base/fault.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::HasSubstr;

struct ScoreTest : testing::Test {
    Score Read(const std::string& text) {
        std::ofstream(folder / "score") << text;
        return ReadScore(folder / "score");
    }

    /// The message of a score that is refused.
    std::string Refusal(const std::string& text) {
        try {
            Read(text);
        } catch (const TypeMismatchFault& fault) {
            return fault.what();
        }
        return "";
    }

    const std::string head = "tonic 200\nscale 0 200 400 500 700 900 1100\nbeat 0.5\n";
    TemporaryFolder folder;
};

TEST_F(ScoreTest, NotesFollowEachOtherInBeats) {
    const Score score = Read(head + "voice flute 0.8\n1:1 -:2\n3:0.5 # the end\n");
    ASSERT_EQ(score.size(), 1U);
    EXPECT_EQ(score[0].instrument, Instrument::kFlute);
    EXPECT_EQ(score[0].loudness, 0.8);
    ASSERT_EQ(score[0].notes.size(), 2U);
    EXPECT_EQ(score[0].notes[0].start, 0.0);
    EXPECT_EQ(score[0].notes[0].length, 0.5);
    EXPECT_EQ(score[0].notes[1].start, 1.5);
    EXPECT_EQ(LengthOf(score), 1.75);
}

TEST_F(ScoreTest, DegreesGoOnAboveAndBelowTheScale) {
    const Score score = Read(head + "voice bell 1\n1:1 8:1 0:1 -6:1 -7:1 5:1\n");
    const std::vector<double> cents = {0, 1200, -100, -1200, -1300, 700};
    for (std::size_t i = 0; i < cents.size(); ++i) {
        EXPECT_NEAR(score[0].notes[i].pitch, 200.0 * std::exp2(cents[i] / 1200.0), 1e-9) << i;
    }
}

TEST_F(ScoreTest, VoicesStartTogether) {
    const Score score = Read(head + "voice pluck 1\n1:4\nvoice bell 0.5\n1:2\n");
    ASSERT_EQ(score.size(), 2U);
    EXPECT_EQ(score[1].notes[0].start, 0.0);
    EXPECT_EQ(LengthOf(score), 2.0);
}

TEST_F(ScoreTest, WhatIsNoScoreIsRefusedWithItsLine) {
    EXPECT_THAT(Refusal(head + "voice drum 1\n"), HasSubstr("score:4: "));
    EXPECT_THAT(Refusal(head + "voice drum 1\n"), HasSubstr("\"drum\""));
    EXPECT_THAT(Refusal(head + "voice flute 2\n1:1\n"), HasSubstr("loudness"));
    EXPECT_THAT(Refusal(head + "voice flute 1\n1\n"), HasSubstr("\"1\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\nx:1\n"), HasSubstr("\"x\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\n1:0\n"), HasSubstr("more than 0"));
    EXPECT_THAT(Refusal(head + "voice flute 1\n1:x\n"), HasSubstr("wants a number"));
    EXPECT_THAT(Refusal(head + "1:1\n"), HasSubstr("before any voice"));
    EXPECT_THAT(Refusal(head + "voice flute 1\n-:1\n"), HasSubstr("no note"));
    EXPECT_THAT(Refusal("voice flute 1\n1:1\n"), HasSubstr("tonic"));
    EXPECT_THAT(Refusal("scale 0 x\n"), HasSubstr("cents"));
    EXPECT_THAT(Refusal("tonic -1\n"), HasSubstr("more than 0"));
}

}  // namespace
}  // namespace horavex
