// The athan's player with real files on a real sound server, and what is heard of it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <optional>

#include "athan/athan_state.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/sound_server.h"
#include "linux/sound/pulse_player.h"
#include "linux/sound/sound_file.h"
#include "sound/posted_events.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

struct PlayerOnAServer : testing::Test {
    PlayerOnAServer() {
        Environment variables;
        server.InstallIn(variables);
        variable.emplace("PULSE_SERVER", variables.at("PULSE_SERVER").c_str());
        InstallPlatform(&ports);
        Ports().audioFile.SetMode(kSampleBytes);
        BindPlayer();
    }
    ~PlayerOnAServer() override { InstallPlatform(&former); }

    std::string Write(const std::string& name, const Samples& samples) {
        WriteWav(folder / name, samples);
        return folder / name;
    }

    void RunUntil(const std::function<bool()>& test) { ASSERT_TRUE(events.RunUntil(test)); }

    /// Plays on until the recording has grown by that much.
    void RunFor(double seconds) {
        const std::size_t wanted =
            recording.Taken().size() + static_cast<std::size_t>(seconds * kWavRate);
        events.RunWhile([&] { return recording.Taken().size() < wanted; });
    }

    TestPlatform platform;
    SoundServer server;
    std::optional<ScopedVariable> variable;
    SinkRecording recording{server};
    TemporaryFolder folder;
    PostedEvents events;
    SoundFile file;
    PulsePlayer player{events.Post()};
    const Platform& former = Ports();
    const Platform ports{former.clock,
                         former.eventLoop,
                         former.files,
                         former.programFolder,
                         former.formats,
                         former.dialogs,
                         former.registry,
                         former.instanceGuard,
                         former.face,
                         former.windows,
                         former.tray,
                         former.shell,
                         former.network,
                         former.athanFace,
                         file,
                         player,
                         former.zoneRules,
                         former.whereabouts,
                         former.notices,
                         former.mediaPlayers,
                         former.session};
};

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
