#include "platform/memory_audio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct MemoryAudioFileTest : testing::Test {
    MemoryAudioFileTest() { file.sounds["/a"] = {Bytes{1, 2, 3, 4, 5, 6}, 8000, {1}}; }

    DesktopLog log;
    MemoryAudioFile file{log};
};

TEST_F(MemoryAudioFileTest, OpensTheSoundsThatItWasGiven) {
    EXPECT_NE(file.Open("/b"), 0);
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.Open("/a"), 0);
    EXPECT_TRUE(file.HasAudio());
    EXPECT_EQ(file.SampleRate(), 8000);
    EXPECT_EQ(file.Format(), SampleFormat{1});
    EXPECT_THAT(file.opened, ElementsAre("/b", "/a"));
}

TEST_F(MemoryAudioFileTest, ReadsOnAndEndsShort) {
    file.Open("/a");
    EXPECT_THAT(file.Read(4), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(file.Read(4), ElementsAre(5, 6));
    EXPECT_THAT(file.Read(4), IsEmpty());
    EXPECT_EQ(file.longestRead, 4U);
}

TEST_F(MemoryAudioFileTest, SeeksToWholeMomentsInsideTheFile) {
    file.Open("/a");
    EXPECT_EQ(file.Seek(3), 2);
    EXPECT_THAT(file.Read(2), ElementsAre(3, 4));
    EXPECT_EQ(file.Seek(100), 6);
    EXPECT_EQ(file.Seek(-1), 0);
}

TEST_F(MemoryAudioFileTest, ClosedFileHasNothing) {
    file.Open("/a");
    file.Close();
    EXPECT_FALSE(file.HasAudio());
    EXPECT_EQ(file.SampleRate(), 0);
    EXPECT_THAT(file.Read(4), IsEmpty());
    EXPECT_EQ(file.Seek(4), 0);
}

TEST_F(MemoryAudioFileTest, SoundWithoutSamplesHasNoAudio) {
    file.sounds["/a"].samples.clear();
    file.Open("/a");
    EXPECT_TRUE(file.IsOpen());
    EXPECT_FALSE(file.HasAudio());
}

struct MemoryAudioPlayerTest : testing::Test {
    MemoryAudioPlayerTest() {
        player.onEndArrayPlay = [this] { events += "block "; };
        player.onRequestOnLoadArray = [this] { events += "request "; };
        player.onEndPlay = [this] { events += "end "; };
        player.SetFormat(100, {1});
    }

    MemoryAudioPlayer player;
    std::string events;
};

TEST_F(MemoryAudioPlayerTest, SpanIsWholeMoments) {
    EXPECT_EQ(player.BytesFor(1000), 200);
    player.SetFormat(44100, {2});
    EXPECT_EQ(player.BytesFor(1000), 176400);
    EXPECT_EQ(player.BytesFor(1), 176);
}

TEST_F(MemoryAudioPlayerTest, PlaysBlockByBlockAndCallsBeforeTheEnd) {
    player.Start();
    player.Write(Bytes{1, 2});
    player.Write(Bytes{3, 4});
    player.FinishBlock();
    EXPECT_EQ(events, "block ");
    EXPECT_EQ(player.Position(), 2);
    player.FinishBlock();
    EXPECT_EQ(events, "block block request end ");
    EXPECT_THAT(player.heard, ElementsAre(1, 2, 3, 4));
    EXPECT_FALSE(player.IsPlaying());
}

TEST_F(MemoryAudioPlayerTest, BlockThatIsBroughtAtTheCallPutsTheEndOff) {
    player.onRequestOnLoadArray = [this] { player.Write(Bytes{9}); };
    player.Start();
    player.FinishBlock();
    EXPECT_EQ(events, "");
    EXPECT_EQ(player.Queued(), 1U);
}

TEST_F(MemoryAudioPlayerTest, BlocksBeforeTheStartArePlayed) {
    player.Write(Bytes{1, 2});
    player.FinishBlock();
    EXPECT_THAT(player.heard, IsEmpty()) << "not yet";
    player.Start();
    player.PlayToTheEnd();
    EXPECT_THAT(player.heard, ElementsAre(1, 2));
}

TEST_F(MemoryAudioPlayerTest, PauseAndStopDropTheQueueWithoutAnEvent) {
    for (const auto silence : {&MemoryAudioPlayer::Pause, &MemoryAudioPlayer::Stop}) {
        player.Start();
        player.Write(Bytes{1, 2});
        player.Hear(1);
        (player.*silence)();
        EXPECT_EQ(player.Queued(), 0U);
        EXPECT_EQ(player.Position(), 1);
        player.FinishBlock();
        EXPECT_EQ(events, "");
    }
}

TEST_F(MemoryAudioPlayerTest, LostDeviceEndsThePlay) {
    player.Start();
    player.Write(Bytes{1, 2});
    player.LoseDevice();
    EXPECT_EQ(events, "end ");
    player.Start();
    EXPECT_FALSE(player.IsPlaying()) << "it is gone for the next sound, too";
}

TEST_F(MemoryAudioPlayerTest, StartWithoutADeviceIsSilentAndTheNextOneTriesAgain) {
    player.hasDevice = false;
    player.Write(Bytes{1, 2});
    player.Start();
    player.FinishBlock();
    EXPECT_EQ(events, "");
    player.hasDevice = true;
    player.Start();
    player.Write(Bytes{3});
    player.FinishBlock();
    EXPECT_EQ(events, "block request end ");
}

}  // namespace
}  // namespace horavex
