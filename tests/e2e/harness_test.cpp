#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <optional>

#include "e2e/harness/faked_clock.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/sound_server.h"
#include "e2e/harness/test_desktop.h"
#include "e2e/harness/tray_host.h"
#include "e2e/harness/wait_until.h"
#include "support/loopback_server.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

bool Lives(pid_t process) {
    return ::kill(process, 0) == 0;
}

TEST(HarnessTest, DesktopHasADisplayAManagerAndABus) {
    const TestDesktop desktop;
    EXPECT_THAT(desktop.Use({"xdpyinfo"}), HasSubstr("1280x960"));
    EXPECT_THAT(desktop.Use({"xprop", "-root", "_NET_SUPPORTED"}),
                HasSubstr("_NET_WM_STATE_HIDDEN"));
    EXPECT_THAT(desktop.Use({"dbus-send", "--session", "--print-reply",
                             "--dest=org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetId"}),
                HasSubstr("string"));
}

TEST(HarnessTest, FailedToolIsAFailure) {
    const TestDesktop desktop;
    EXPECT_THROW(desktop.Use({"xprop", "-id", "1"}), std::runtime_error);
}

TEST(HarnessTest, SoundServerHasItsSinkAndEndsWithItsObject) {
    auto server = std::make_optional<SoundServer>();
    Environment variables{{"HOME", "/"}};
    server->InstallIn(variables);
    EXPECT_THAT(RunCommand({"pactl", "list", "short", "sinks"}, variables).out, HasSubstr("nul"));
    const pid_t process = server->Id();
    server.reset();
    EXPECT_FALSE(Lives(process));
}

TEST(HarnessTest, RecordingHoldsWhatTheDevicePlays) {
    const SoundServer server;
    const SinkRecording recording(server);
    const TemporaryFolder folder;
    const Samples sound = Glide(1.0, 400.0, 700.0);
    WriteWav(folder / "a.wav", sound);
    server.Use({"paplay", folder / "a.wav"});
    const std::size_t start = recording.WaitForSound();
    recording.WaitForSilence(start);
    const Samples recorded = recording.Taken();
    const std::vector<Stretch> sounds = SoundsIn(recorded);
    ASSERT_EQ(sounds.size(), 1U);
    EXPECT_NEAR(sounds[0].Seconds(), 1.0, 0.05);
    EXPECT_GT(Likeness(recorded, start, sound, 0, kWavRate / 4), 0.98);
    EXPECT_LT(Likeness(recorded, start, Glide(1.0, 900.0, 800.0), 0, kWavRate / 4), 0.3);
    EXPECT_NEAR(PlaceIn(sound, recorded, start + kWavRate / 2), 0.5, 0.02);
}

TEST(HarnessTest, TrayHostOwnsTheSelectionOfTheDisplay) {
    const TestDesktop desktop;
    auto host = std::make_optional<TrayHost>(desktop.variables);
    WaitUntil("a panel", [&] {
        return RunCommand({"xdotool", "search", "--class", "trayer"}, desktop.variables).status ==
               0;
    });
    const pid_t process = host->Id();
    host.reset();
    EXPECT_FALSE(Lives(process));
}

TEST(HarnessTest, FakedClockIsSetAndSetAgain) {
    const FakedClock clock("2026-03-01 04:59:30");
    Environment variables{{"TZ", "UTC"}};
    clock.InstallIn(variables);
    EXPECT_THAT(RunCommand({"date", "+%F %H:%M"}, variables).out, "2026-03-01 04:59\n");
    clock.Set("2027-12-31 23:58:30");
    EXPECT_THAT(RunCommand({"date", "+%F %H:%M"}, variables).out, "2027-12-31 23:58\n");
}

TEST(HarnessTest, LoopbackServerAnswersWhatItWasGiven) {
    LoopbackServer server;
    server.Serve("/a/b.txt", "4.2\n");
    const auto fetch = [&](const std::string& path) {
        return RunCommand({"curl", "--silent", "--fail", server.Address() + path}, {});
    };
    EXPECT_EQ(fetch("/a/b.txt").out, "4.2\n");
    EXPECT_EQ(fetch("/a/c.txt").status, 22);
    EXPECT_THAT(server.Requests(), ElementsAre("/a/b.txt", "/a/c.txt"));
}

}  // namespace
}  // namespace horavex
