#include "athan/player.h"

#include <numeric>

#include "athan/athan_state.h"
#include "athan/sound.h"
#include "base/fault.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr int kBlock = 200;  // bytes of a second: 100 moments of one sample

/// So many bytes of a sound from a position on, each another one than its neighbours.
Bytes Samples(std::size_t count, std::size_t from = 0) {
    Bytes samples(count);
    std::iota(samples.begin(), samples.end(), static_cast<std::uint8_t>(from + 1));
    return samples;
}

struct PlayerTest : ProgramTest {
    PlayerTest() {
        Provide("/long", Samples(5 * kBlock));
        Provide("/short", Samples(60));
    }

    void Provide(const std::string& path, Bytes samples) {
        platform.audioFile.sounds[path] = {std::move(samples), 100, {1}};
    }

    static void ExpectRest() {
        EXPECT_FALSE(IsPlaying());
        EXPECT_EQ(Paused, 0);
    }

    /// What is heard of the sound that pauses when it goes on to its end.
    Bytes HeardFromHere() {
        player.heard.clear();
        PausePlay();
        player.PlayToTheEnd();
        return player.heard;
    }

    MemoryAudioPlayer& player = platform.audioPlayer;
    MemoryAudioFile& file = platform.audioFile;
};

TEST_F(PlayerTest, StartQueuesTwoBlocksOfASecond) {
    OpenFileForPlay("/long");
    EXPECT_TRUE(IsPlaying());
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(file.longestRead, static_cast<std::size_t>(kBlock));
    EXPECT_EQ(player.starts, 1);
    EXPECT_EQ(player.Queued(), 2U);
}

TEST_F(PlayerTest, WholeFileIsHeardWithTwoBlocksQueuedAtMost) {
    OpenFileForPlay("/long");
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(5 * kBlock));
    EXPECT_EQ(player.mostQueued, 2U);
    EXPECT_EQ(file.longestRead, static_cast<std::size_t>(kBlock));
}

TEST_F(PlayerTest, BlockFollowsTheFormatOfTheFile) {
    file.sounds["/stereo"] = {Samples(200000), 44100, {2}};
    OpenFileForPlay("/stereo");
    EXPECT_EQ(file.longestRead, 176400U);
}

TEST_F(PlayerTest, SoundOfLessThanASecondIsHeardAndEnds) {
    OpenFileForPlay("/short");
    EXPECT_EQ(player.Queued(), 1U);
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(60));
    ExpectRest();
}

TEST_F(PlayerTest, LastBlockIsPlayedInItsOwnLength) {
    Provide("/odd", Samples(2 * kBlock + 10));
    OpenFileForPlay("/odd");
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard.size(), 2U * kBlock + 10);
}

TEST_F(PlayerTest, ReadOfLessThanTwoBytesIsTheEnd) {
    Provide("/odd", Samples(kBlock + 1));
    OpenFileForPlay("/odd");
    EXPECT_EQ(player.Queued(), 1U);
}

TEST_F(PlayerTest, EndLeavesTheFileOpenAtItsBeginning) {
    OpenFileForPlay("/long");
    player.PlayToTheEnd();
    ExpectRest();
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(file.Read(2), Samples(2));
}

TEST_F(PlayerTest, EndClearsTheAthanAndTakesItsWindowAway) {
    OpenFileForPlay("/short");
    frmAzan->Show();
    athanActive = -1;
    player.PlayToTheEnd();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->IsLoaded());
}

TEST_F(PlayerTest, LostDeviceIsAnEndOfPlay) {
    OpenFileForPlay("/long");
    frmAzan->Show();
    athanActive = -1;
    player.LoseDevice();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->IsLoaded());
    ExpectRest();
}

TEST_F(PlayerTest, WithoutADeviceNothingEndsAndTheNextStartTriesAgain) {
    player.hasDevice = false;
    athanActive = -1;
    OpenFileForPlay("/short");
    player.FinishBlock();
    EXPECT_EQ(athanActive, -1) << "the window stays, as without a sound";
    player.hasDevice = true;
    OpenFileForPlay("/short");
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(60));
}

TEST_F(PlayerTest, WhatCannotBeOpenedLeavesNothingPlaying) {
    Provide("/empty", {});
    for (const std::string path : {"/missing", "/empty", ""}) {
        SCOPED_TRACE(path);
        OpenFileForPlay("/long");
        OpenFileForPlay(path);
        ExpectRest();
        StartPlay();
        EXPECT_FALSE(player.IsPlaying()) << "no file is open";
        EXPECT_TRUE(platform.dialogs.messages.empty());
    }
}

TEST_F(PlayerTest, EmptyPathIsNotAskedFor) {
    OpenFileForPlay("");
    EXPECT_TRUE(file.opened.empty());
}

TEST_F(PlayerTest, StopAwaitsNoEventAndTheNextSoundStartsClean) {
    OpenFileForPlay("/long");
    player.FinishBlock();
    StopPlay();
    ExpectRest();
    EXPECT_FALSE(player.IsPlaying());
    player.heard.clear();
    OpenFileForPlay("/short");
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(60));
}

TEST_F(PlayerTest, StopKeepsTheFileOpenAndStartPlaysItFromTheBeginning) {
    OpenFileForPlay("/long");
    player.FinishBlock();
    StopPlay();
    EXPECT_TRUE(file.IsOpen());
    player.heard.clear();
    StartPlay();
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(5 * kBlock));
}

TEST_F(PlayerTest, StartResumesAPausedSound) {
    OpenFileForPlay("/long");
    PausePlay();
    StartPlay();
    EXPECT_EQ(Paused, 0);
    EXPECT_EQ(player.starts, 2);
}

TEST_F(PlayerTest, StartWithoutAFileDoesNothing) {
    StartPlay();
    EXPECT_FALSE(IsPlaying());
    EXPECT_EQ(player.starts, 0);
}

TEST_F(PlayerTest, ResumeGoesOnWhereThePauseBegan) {
    OpenFileForPlay("/long");
    player.FinishBlock();
    player.Hear(50);
    PausePlay();
    EXPECT_EQ(Paused, -1);
    EXPECT_TRUE(IsPlaying());
    EXPECT_FALSE(player.IsPlaying());
    EXPECT_EQ(HeardFromHere(), Samples(4 * kBlock - 50, kBlock + 50));
    EXPECT_EQ(player.mostQueued, 2U);
}

TEST_F(PlayerTest, SecondPauseAddsToTheFirst) {
    OpenFileForPlay("/long");
    player.Hear(100);
    PausePlay();
    PausePlay();
    player.Hear(60);
    PausePlay();
    EXPECT_EQ(HeardFromHere(), Samples(5 * kBlock - 160, 160));
}

TEST_F(PlayerTest, ResumeKeepsThePositionThatTheFileReached) {
    OpenFileForPlay("/long");
    player.Hear(51);
    PausePlay();
    EXPECT_EQ(HeardFromHere(), Samples(5 * kBlock - 50, 50)) << "a whole moment";
}

TEST_F(PlayerTest, ResumeAtTheVeryEndComesToTheEnd) {
    OpenFileForPlay("/short");
    player.Hear(60);
    PausePlay();
    athanActive = -1;
    PausePlay();
    player.PlayToTheEnd();
    EXPECT_EQ(athanActive, 0);
    ExpectRest();
}

TEST_F(PlayerTest, PauseWithoutAPlayDoesNothing) {
    PausePlay();
    EXPECT_EQ(Paused, 0);
    OpenFileForPlay("/long");
    StopPlay();
    PausePlay();
    EXPECT_EQ(Paused, 0);
}

TEST_F(PlayerTest, PauseBehindTheLargestPositionIsAFault) {
    OpenFileForPlay("/long");
    player.Hear(2147483647);
    EXPECT_NO_THROW(PausePlay());
    PausePlay();
    player.Hear(2147483647);
    EXPECT_THROW(PausePlay(), OverflowFault);
}

TEST_F(PlayerTest, CallForABlockOfAStoppedPlayerTakesTheAthanWindowAway) {
    frmAzan->Show();
    athanActive = -1;
    FeedAudio();
    EXPECT_EQ(athanActive, 0);
    EXPECT_FALSE(frmAzan->IsLoaded());
}

TEST_F(PlayerTest, FileIsClosedByTheNextOne) {
    OpenFileForPlay("/long");
    OpenFileForPlay("/missing");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_THAT(file.opened, ElementsAre("/long", "/missing"));
}

using SoundTest = PlayerTest;

TEST_F(SoundTest, PlayFileOpensThePath) {
    PlayFile("/short");
    EXPECT_THAT(file.opened, ElementsAre("/short"));
    EXPECT_TRUE(IsPlaying());
}

TEST_F(SoundTest, PlayFileWhilePausedResumesTheFormerFile) {
    PlayFile("/long");
    PauseSound();
    PlayFile("/short");
    EXPECT_THAT(file.opened, ElementsAre("/long"));
    EXPECT_EQ(Paused, 0);
    player.PlayToTheEnd();
    EXPECT_EQ(player.heard, Samples(5 * kBlock));
}

TEST_F(SoundTest, StoppedPauseIsForgotten) {
    PlayFile("/long");
    PauseSound();
    StopSound();
    PlayFile("/short");
    EXPECT_THAT(file.opened, ElementsAre("/long", "/short"));
}

TEST_F(SoundTest, FullPathFindsAFileInAnyLetterCaseOrNamesWhereItWouldBe) {
    platform.files.WriteWhole("/program/ATHAN/Athan.MP3", {});
    EXPECT_EQ(FullPath("Athan\\athan.mp3"), "/program/ATHAN/Athan.MP3");
    EXPECT_EQ(FullPath("Azan.swf"), "/program/Azan.swf");
}

TEST_F(SoundTest, TwoSoundsThatArePlayed) {
    Athan_Sound_Click();
    Fagr_Athan_Sound_Click();
    EXPECT_THAT(file.opened,
                ElementsAre("/program/Athan/athan.mp3", "/program/Athan/fagr_athan.mp3"));
}

}  // namespace
}  // namespace horavex
