#include "athan/loudness.h"

#include <cmath>
#include <cstring>

#include "athan/player.h"
#include "athan/sound.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;

using Values = std::vector<std::int16_t>;

constexpr int kRate = 100;  // moments a second

Bytes BytesOf(const Values& values) {
    Bytes bytes(values.size() * 2);
    std::memcpy(bytes.data(), values.data(), bytes.size());
    return bytes;
}

Values ValuesOf(const Bytes& bytes) {
    Values values(bytes.size() / 2);
    std::memcpy(values.data(), bytes.data(), values.size() * 2);
    return values;
}

/// What a gain makes of a block of one channel.
Values Applied(const Gain& gain, const Values& values, std::int64_t position = 0) {
    Bytes block = BytesOf(values);
    gain.Apply(block, position);
    return ValuesOf(block);
}

/// Of a sound of so many seconds, one channel.
Gain GainFor(const Loudness& loudness, int seconds = 1000) {
    return {loudness, kRate, {1}, std::int64_t{seconds} * kRate * 2};
}

TEST(Gain, FullLoudnessChangesNoByte) {
    const Values values = {0, 1, -1, 32767, -32768};
    EXPECT_EQ(Applied(Gain(), values), values);
    EXPECT_EQ(Applied(GainFor({}), values), values);
}

TEST(Gain, VolumeGoesByItsCube) {
    EXPECT_THAT(Applied(GainFor({50, 0}), {8000, -8000, 4}), ElementsAre(1000, -1000, 0));
    EXPECT_THAT(Applied(GainFor({80, 0}), {10000}), ElementsAre(5120));
    EXPECT_THAT(Applied(GainFor({0, 0}), {32767, -32768}), Each(0));
}

TEST(Gain, FadeRisesFromSilenceToTheVolume) {
    const Gain gain = GainFor({50, 2});
    EXPECT_THAT(Applied(gain, {16000}), ElementsAre(0));
    EXPECT_THAT(Applied(gain, {16000}, kRate * 2), ElementsAre(250)) << "half way";
    EXPECT_THAT(Applied(gain, {16000}, 2 * kRate * 2), ElementsAre(2000));
    EXPECT_THAT(Applied(gain, {16000}, 9 * kRate * 2), ElementsAre(2000));
}

TEST(Gain, FadeGoesFromSampleToSampleAndOverBlocks) {
    const Gain gain = GainFor({100, 10});
    const Values whole = Applied(gain, Values(2000, 20000));
    for (std::size_t i = 1; i < whole.size(); ++i) {
        ASSERT_GE(whole[i], whole[i - 1]);
        ASSERT_LE(whole[i] - whole[i - 1], 61) << "three of a thousand and a rounding";
    }
    const Values later = Applied(gain, Values(500, 20000), 700 * 2);
    EXPECT_EQ(later, Values(whole.begin() + 700, whole.begin() + 1200));
}

TEST(Gain, ChannelsOfAMomentRiseTogether) {
    const Gain gain({100, 1}, kRate, {2}, 1'000'000);
    const Values values = Applied(gain, Values(40, 32000), 30 * 4);
    for (std::size_t i = 0; i < values.size(); i += 2) {
        EXPECT_EQ(values[i], values[i + 1]);
    }
    EXPECT_LT(values[0], values[2]);
}

TEST(Gain, BehindTheFadeNoByteChanges) {
    const Values values = {7, -7, 32767};
    EXPECT_EQ(Applied(GainFor({100, 2}), values, 2 * kRate * 2), values);
}

TEST(Gain, FadeTakesHalfOfTheSoundAtMost) {
    const Gain gain = GainFor({100, 60}, 4);
    EXPECT_LT(Applied(gain, {10000}, (2 * kRate - 1) * 2)[0], 10000);
    EXPECT_THAT(Applied(gain, {10000}, 2 * kRate * 2), ElementsAre(10000));
}

TEST(Gain, OddByteAtTheEndStays) {
    Bytes block = {0x40, 0x1F, 0x55};  // 8000, and half a sample
    GainFor({50, 0}).Apply(block, 0);
    EXPECT_EQ(block, (Bytes{0xE8, 0x03, 0x55}));
}

struct LoudnessOfAPlay : ProgramTest {
    LoudnessOfAPlay() { platform.audioFile.sounds["/sound"] = {BytesOf(sound), kRate, {1}}; }

    Values Heard() {
        player.PlayToTheEnd();
        return ValuesOf(std::exchange(player.heard, {}));
    }

    /// What is heard without a pause.
    Values Whole(const Loudness& loudness) {
        OpenFileForPlay("/sound", loudness);
        return Heard();
    }

    const Values sound = Values(10 * kRate, 8000);
    MemoryAudioPlayer& player = platform.audioPlayer;
};

TEST_F(LoudnessOfAPlay, SoundPlaysAtTheVolumeThatItIsOpenedWith) {
    EXPECT_EQ(Whole({50, 0}), Values(sound.size(), 1000));
}

TEST_F(LoudnessOfAPlay, NextSoundThatAsksForNothingPlaysAsItIs) {
    Whole({50, 5});
    PlayFile("/sound");
    EXPECT_EQ(Heard(), sound);
}

TEST_F(LoudnessOfAPlay, WholeSoundIsHeardWithAFadeToo) {
    const Values heard = Whole({100, 3});
    ASSERT_EQ(heard.size(), sound.size());
    EXPECT_EQ(heard.front(), 0);
    EXPECT_EQ(heard[150], 1000);
    EXPECT_EQ(Values(heard.begin() + 300, heard.end()), Values(700, 8000));
    for (std::size_t i = 1; i < heard.size(); ++i) {
        ASSERT_GE(heard[i], heard[i - 1]);
    }
}

TEST_F(LoudnessOfAPlay, ResumeGoesOnAsLoudAsItWas) {
    const Values whole = Whole({80, 5});
    OpenFileForPlay("/sound", {80, 5});
    player.FinishBlock();
    player.Hear(51);
    PausePlay();
    player.heard.clear();
    PausePlay();
    EXPECT_EQ(Heard(), Values(whole.begin() + 125, whole.end()));
}

TEST_F(LoudnessOfAPlay, StartFromTheBeginningRisesAgain) {
    const Values whole = Whole({80, 5});
    StartPlay();
    EXPECT_EQ(Heard(), whole);
}

TEST_F(LoudnessOfAPlay, ShortSoundIsHeardWithTheLongestFade) {
    const Values heard = Whole({100, 60});
    EXPECT_EQ(Values(heard.begin() + 500, heard.end()), Values(500, 8000));
}

TEST_F(LoudnessOfAPlay, SoundThatIsResumedKeepsItsOwn) {
    PlayFileAt("/sound", {50, 0});
    PauseSound();
    PlayFileAt("/sound", {100, 0});
    EXPECT_EQ(Heard(), Values(sound.size(), 1000));
    PlayFileAt("/sound", {80, 0});
    EXPECT_EQ(Heard(), Values(sound.size(), 4096));
}

}  // namespace
}  // namespace horavex
