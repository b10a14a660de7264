// The athan's player with real files on a real sound server, and what is heard of it.

#include "player_on_server.h"

#include <fstream>

#include "athan/athan_state.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

TEST_F(PlayerOnAServer, WholeFileIsHeardAsItIs) {
    const Samples sound = Glide(2.5, 300.0, 900.0);
    OpenFileForPlay(Write("a.wav", sound));
    RunUntil([] { return !IsPlaying(); });
    const std::size_t start = recording.WaitForSound();
    const std::size_t end = recording.WaitForSilence(start);
    EXPECT_NEAR((Stretch{start, end}.Seconds()), 2.5, 0.1);
    const Samples heard = recording.Taken();
    for (const double second : {0.0, 1.0, 2.0}) {
        const auto at = static_cast<std::size_t>(second * kWavRate);
        EXPECT_GT(Likeness(heard, start + at, sound, at, kWavRate / 4), 0.98) << second;
    }
}

TEST_F(PlayerOnAServer, ResumeGoesOnWhereThePauseBegan) {
    const Samples sound = Glide(6.0, 300.0, 1500.0);
    OpenFileForPlay(Write("a.wav", sound));
    RunFor(1.5);
    const double kept = static_cast<double>(player.Position()) / 2.0 / kWavRate;
    PausePlay();
    RunFor(1.0);
    PausePlay();
    RunFor(1.5);
    StopPlay();
    const Samples heard = recording.Taken();
    const std::vector<Stretch> sounds = SoundsIn(heard);
    ASSERT_EQ(sounds.size(), 2U);
    const double resumed = PlaceIn(sound, heard, sounds[1].from);
    EXPECT_NEAR(resumed, kept, 0.02) << "where it paused";
    EXPECT_NEAR(resumed, sounds[0].Seconds(), 0.35) << "what had been heard";
}

TEST_F(PlayerOnAServer, ShortFileIsHeardAndTakesTheAthanWindowAway) {
    frmAzan->Show();
    athanActive = -1;
    OpenFileForPlay(Write("a.wav", Glide(0.3, 500.0, 600.0)));
    RunUntil([] { return athanActive == 0; });
    EXPECT_FALSE(frmAzan->IsLoaded());
    const std::size_t start = recording.WaitForSound();
    EXPECT_NEAR((Stretch{start, recording.WaitForSilence(start)}.Seconds()), 0.3, 0.05);
}

TEST_F(PlayerOnAServer, WhatIsNoSoundLeavesTheAthanWindowUpInSilence) {
    std::ofstream(folder / "text.mp3") << "These are words, and many of them.\n";
    std::ofstream(folder / "empty.mp3");
    for (const std::string name : {"text.mp3", "empty.mp3", "missing.mp3"}) {
        frmAzan->Show();
        athanActive = -1;
        OpenFileForPlay(folder / name);
        EXPECT_FALSE(IsPlaying());
        EXPECT_EQ(athanActive, -1);
        EXPECT_TRUE(frmAzan->Visible());
    }
}

TEST_F(PlayerOnAServer, StopSilencesWithinThreeTenthsOfASecond) {
    OpenFileForPlay(Write("a.wav", Glide(6.0, 300.0, 1500.0)));
    RunFor(1.5);
    const std::size_t stopped = recording.Taken().size();
    StopPlay();
    EXPECT_LT((Stretch{stopped, recording.WaitForSilence(stopped)}.Seconds()), 0.3);
}

TEST_F(PlayerOnAServer, NextSoundAfterAVanishedDeviceIsHeardAgain) {
    const std::string path = Write("a.wav", Glide(6.0, 300.0, 1500.0));
    OpenFileForPlay(path);
    RunFor(1.0);
    server.Use({"pactl", "unload-module", "module-null-sink"});
    RunUntil([] { return !IsPlaying(); });
    server.Use(
        {"pactl", "load-module", "module-null-sink", "sink_name=nul", "rate=44100", "norewinds=1"});
    const SinkRecording again(server);
    OpenFileForPlay(path);
    again.WaitForSound();
    StopPlay();
}

}  // namespace
}  // namespace horavex
