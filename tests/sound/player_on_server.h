#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "athan/player.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/sound_server.h"
#include "linux/sound/pulse_player.h"
#include "linux/sound/sound_file.h"
#include "sound/posted_events.h"
#include "support/scoped_variable.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

namespace horavex {

/// The athan's player with real files on a sound server of its own, whose device is recorded.
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
                         former.session,
                         former.almanac,
                         former.broadcast};
};

}  // namespace horavex
