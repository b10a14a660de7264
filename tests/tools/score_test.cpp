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
    ASSERT_EQ(score.voices.size(), 1U);
    EXPECT_EQ(score.voices[0].instrument, Instrument::kFlute);
    EXPECT_EQ(score.voices[0].loudness, 0.8);
    ASSERT_EQ(score.voices[0].notes.size(), 2U);
    EXPECT_EQ(score.voices[0].notes[0].start, 0.0);
    EXPECT_EQ(score.voices[0].notes[0].length, 0.5);
    EXPECT_EQ(score.voices[0].notes[1].start, 1.5);
    EXPECT_EQ(LengthOf(score), 1.75);
}

TEST_F(ScoreTest, DegreesGoOnAboveAndBelowTheScale) {
    const Score score = Read(head + "voice bell 1\n1:1 8:1 0:1 -6:1 -7:1 5:1\n");
    const std::vector<double> cents = {0, 1200, -100, -1200, -1300, 700};
    for (std::size_t i = 0; i < cents.size(); ++i) {
        EXPECT_NEAR(score.voices[0].notes[i].pitch, 200.0 * std::exp2(cents[i] / 1200.0), 1e-9)
            << i;
    }
}

TEST_F(ScoreTest, VoicesStartTogether) {
    const Score score = Read(head + "voice oud 1\n1:4\nvoice bell 0.5\n1:2\n");
    ASSERT_EQ(score.voices.size(), 2U);
    EXPECT_EQ(score.voices[1].notes[0].start, 0.0);
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

TEST_F(ScoreTest, EveryInstrumentHasItsName) {
    const Score score = Read(head +
                             "voice flute 1\n1:1\nvoice oud 1\nvoice santur 1\nvoice bell 1\n"
                             "voice choir 1\nvoice drone 1\n");
    const Instrument instruments[] = {Instrument::kFlute, Instrument::kOud,   Instrument::kSantur,
                                      Instrument::kBell,  Instrument::kChoir, Instrument::kDrone};
    for (std::size_t i = 0; i < std::size(instruments); ++i) {
        EXPECT_EQ(score.voices[i].instrument, instruments[i]);
    }
}

TEST_F(ScoreTest, VoiceMayHaveAPlace) {
    const Score score = Read(head + "voice bell 1 -0.5 # left\n1:1\nvoice bell 1 # middle\n1:1\n");
    EXPECT_EQ(score.voices[0].place, -0.5);
    EXPECT_EQ(score.voices[1].place, 0.0);
}

TEST_F(ScoreTest, TailIsToldOrFourSeconds) {
    EXPECT_EQ(Read(head + "voice bell 1\n1:1\n").tail, 4.0);
    EXPECT_EQ(Read(head + "tail 1.5\nvoice bell 1\n1:1\n").tail, 1.5);
}

TEST_F(ScoreTest, StrengthHoldsUntilTheNextOneAndForOneVoice) {
    const Score score =
        Read(head + "voice oud 1\n1:1 p 1:1 1:1 ff 1:1\nvoice bell 1\n1:1 pp 1:1\n");
    const auto strength = [&](std::size_t voice, std::size_t note) {
        return score.voices[voice].notes[note].strength;
    };
    EXPECT_EQ(strength(0, 0), kUsualStrength);
    EXPECT_EQ(strength(0, 1), 0.4);
    EXPECT_EQ(strength(0, 2), 0.4);
    EXPECT_EQ(strength(0, 3), 1.0);
    EXPECT_EQ(strength(1, 0), kUsualStrength);
    EXPECT_EQ(strength(1, 1), 0.25);
}

/// The notes of a score of one word, behind the head.
struct OrnamentTest : ScoreTest {
    std::vector<Note> Notes(const std::string& word) {
        return Read(head + "voice flute 1\n" + word + "\n").voices[0].notes;
    }

    static constexpr double kFifth = 200.0 * 1.4983070768766815;  // 700 cents
};

TEST_F(OrnamentTest, SlideBeginsAtItsFirstDegree) {
    const std::vector<Note> notes = Notes("1>5:2 5:1");
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_NEAR(notes[0].from, 200.0, 1e-9);
    EXPECT_NEAR(notes[0].pitch, kFifth, 1e-9);
    EXPECT_EQ(notes[0].length, 1.0);
    EXPECT_EQ(notes[1].from, notes[1].pitch);
}

TEST_F(OrnamentTest, GraceNoteIsShortAndTakesFromItsNote) {
    const std::vector<Note> notes = Notes("5'1:2 1:1");
    ASSERT_EQ(notes.size(), 3U);
    EXPECT_NEAR(notes[0].pitch, kFifth, 1e-9);
    EXPECT_LT(notes[0].length, 0.1);
    EXPECT_NEAR(notes[1].pitch, 200.0, 1e-9);
    EXPECT_EQ(notes[1].start, notes[0].length);
    EXPECT_NEAR(notes[1].start + notes[1].length, 1.0, 1e-12);
    EXPECT_EQ(notes[2].start, 1.0);
}

TEST_F(OrnamentTest, GraceNoteOfAShortNoteTakesAThirdOfIt) {
    EXPECT_NEAR(Notes("5'1:0.2")[0].length, 0.1 / 3.0, 1e-12);
}

TEST_F(OrnamentTest, TrillGoesToTheDegreeAboveAndEndsOnItsNote) {
    const std::vector<Note> notes = Notes("5~:2");
    ASSERT_EQ(notes.size(), 11U);
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const double cents = i % 2 == 0 ? 700.0 : 900.0;
        EXPECT_NEAR(notes[i].pitch, 200.0 * std::exp2(cents / 1200.0), 1e-9) << i;
        EXPECT_NEAR(notes[i].start, static_cast<double>(i) / 11.0, 1e-12);
    }
}

TEST_F(OrnamentTest, TremoloStrikesTheNoteAgainMoreWeakly) {
    const std::vector<Note> notes = Notes("f 5*:2");
    ASSERT_EQ(notes.size(), 11U);
    EXPECT_EQ(notes[0].strength, 0.85);
    EXPECT_LT(notes[1].strength, notes[2].strength);
    EXPECT_LT(notes[2].strength, notes[0].strength);
    EXPECT_EQ(notes[10].pitch, notes[0].pitch);
}

TEST_F(OrnamentTest, ShortestTrillHasThreeStrokes) {
    EXPECT_EQ(Notes("5~:0.1").size(), 3U);
}

TEST_F(ScoreTest, WrongWordsOfAVoiceAreRefused) {
    EXPECT_THAT(Refusal(head + "voice flute 1 left\n1:1\n"), HasSubstr("place"));
    EXPECT_THAT(Refusal(head + "voice flute 1 2\n1:1\n"), HasSubstr("-1 to 1"));
    EXPECT_THAT(Refusal(head + "tail 0\n"), HasSubstr("more than 0"));
    EXPECT_THAT(Refusal(head + "voice flute 1\n5~6:1\n"), HasSubstr("\"5~\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\n5*x:1\n"), HasSubstr("\"5*\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\n>5:1\n"), HasSubstr("\"\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\n5':1\n"), HasSubstr("\"\""));
    EXPECT_THAT(Refusal(head + "voice flute 1\nmff\n"), HasSubstr("\"mff\""));
    EXPECT_THAT(Refusal(head + "p\n"), HasSubstr("before any voice"));
}

}  // namespace
}  // namespace horavex
