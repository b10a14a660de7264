// The athan as a user meets it: the built program, its windows, and what the sound device plays.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "e2e/harness/athan_fixture.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

constexpr const char* kAlarmTitle = "Horavex Prayer Time Software ";
constexpr int kAlarmTime = 150;  // 12:30

/// The beginning of a sound is that of the recording's at that place.
void ExpectHeard(const SinkRecording& recording, std::size_t at, const Samples& sound) {
    recording.Continue(1.0);
    EXPECT_GT(Likeness(recording.Taken(), at, sound, 0, kWavRate / 2), 0.95);
}

TEST_F(AthanProgramTest, PrayersArrivalRisesSoundsStopsAndComesBackInItsTenSeconds) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    GoTo(3);
    const std::string window = WaitForAthan(program);
    const ScreenPlace place = desktop.PlaceOf(window);
    EXPECT_EQ(place.x + place.width, 1280);
    EXPECT_NEAR(960 - place.y, place.height - 400 / 15, 3);
    const std::size_t start = recording.WaitForSound();
    ExpectHeard(recording, start, others);
    desktop.SaveScreen("athan");

    const std::size_t stopped = recording.Taken().size();
    PressStop(window);
    const std::size_t silent = recording.WaitForSilence(stopped);
    std::cout << "silent " << Stretch{stopped, silent}.Seconds() << " s after Stop\n";
    EXPECT_LT((Stretch{stopped, silent}.Seconds()), 0.3);

    const std::string again = WaitForAthan(program);  // on the next tick
    const std::size_t second = recording.WaitForSound(silent + kWavRate / 2);
    ExpectHeard(recording, second, others);

    SetClock(SecondOf(3) + 60);
    ExpectTicks();
    PressStop(again);
    const std::size_t stoppedAgain = recording.Taken().size();
    const std::size_t silentAgain = recording.WaitForSilence(stoppedAgain);
    recording.Continue(4.0);
    EXPECT_FALSE(IsOnView(program)) << "its ten seconds are over";
    EXPECT_EQ(recording.WaitForSilence(silentAgain), silentAgain);
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(AthanProgramTest, FajrHasASoundOfItsOwn) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    SetClock(SecondOf(0) - 1);
    WaitForAthan(program);
    ExpectHeard(recording, recording.WaitForSound(), fajr);
}

TEST_F(AthanProgramTest, EndOfTheSoundTakesTheWindowAway) {
    SetSound("athan", Glide(11.0, 300.0, 900.0));
    const ChildProcess program = Start();
    GoTo(2);
    WaitForAthan(program);
    WaitUntil("no window", [&] { return !IsOnView(program); });
    ExpectTicks();
    EXPECT_FALSE(IsOnView(program));
}

TEST_F(AthanProgramTest, MuteAndBuzzerAreSilentWithTheWindowUp) {
    for (const std::int16_t type : {std::int16_t{1}, std::int16_t{2}}) {
        StoreSettings(type, kNoAlarm);
        SetClock(12 * 3600);
        const SinkRecording recording(*sound);
        const ChildProcess program = Start();
        GoTo(4);
        const std::string window = WaitForAthan(program);
        recording.Continue(2.0);
        EXPECT_TRUE(SoundsIn(recording.Taken()).empty());
        EXPECT_TRUE(IsOnView(program));
    }
}

TEST_F(AthanProgramTest, WithoutASoundServerTheWindowComesUpAndTheProgramRunsOn) {
    programVariables["PULSE_SERVER"] = "unix:" + (desktop / "nothing");
    const ChildProcess program = Start();
    GoTo(3);
    const std::string window = WaitForAthan(program);
    ExpectTicks();
    ExpectTicks();
    SetClock(SecondOf(3) + 60);
    ExpectTicks();
    PressStop(window);
    WaitUntil("no window", [&] { return !IsOnView(program); });
}

TEST_F(AthanProgramTest, DeviceThatVanishesEndsTheAthan) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    GoTo(3);
    WaitForAthan(program);
    recording.WaitForSound();
    SetClock(SecondOf(3) + 60);
    ExpectTicks();
    sound.reset();
    WaitUntil("no window", [&] { return !IsOnView(program); });
    ExpectTicks();
}

TEST_F(AthanProgramTest, WhatIsNoSoundLeavesTheWindowUp) {
    std::ofstream(desktop / "data/horavex/Athan/athan.mp3") << "These are words.\n";
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    GoTo(5);
    WaitForAthan(program);
    recording.Continue(1.0);
    EXPECT_TRUE(SoundsIn(recording.Taken()).empty());
    EXPECT_TRUE(IsOnView(program));
}

TEST_F(AthanProgramTest, FreshInstallHasItsSoundsFromTheStart) {
    fs::remove_all(desktop / "data/horavex/Athan");
    const ChildProcess program = Start();
    EXPECT_EQ(ContentOf(desktop / "data/horavex/Athan/athan.mp3"),
              ContentOf(BuiltProgramFolder() + "/Athan/athan1.mp3"));
    EXPECT_EQ(ContentOf(desktop / "data/horavex/Athan/fagr_athan.mp3"),
              ContentOf(BuiltProgramFolder() + "/Athan/fagr_athan1.mp3"));
}

TEST_F(AthanProgramTest, AlarmBeepsUntilItIsClosedAndComesBackInItsTenSeconds) {
    StoreSettings(3, kAlarmTime);
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    SetClock(kAlarmTime * 300 - 1);
    const std::string window = desktop.WaitForWindow(program, kAlarmTitle);
    const std::size_t first = recording.WaitForSound();
    const std::size_t second = recording.WaitForSound(recording.WaitForSilence(first));
    EXPECT_NEAR((Stretch{first, second}.Seconds()), 3.0, 0.3) << "a beep every three seconds";
    desktop.SaveScreen("alarm");

    const auto close = [&](const std::string& alarm) {
        const ScreenPlace place = desktop.PlaceOf(alarm);
        Click(alarm, place.width - 55, place.height - 28);
        WaitUntil("a closed alarm", [&] { return !desktop.IsOnView(program, alarm); });
    };
    close(window);
    const std::string again = desktop.WaitForWindow(program, kAlarmTitle);
    recording.WaitForSound(recording.Taken().size());
    SetClock(kAlarmTime * 300 + 60);
    close(again);
    const std::size_t closed = recording.Taken().size();
    recording.Continue(5.0);
    EXPECT_LT((Stretch{closed, recording.WaitForSilence(closed)}.Seconds()), 0.5)
        << "a beep that sounds just then dies away, and none follows";
    EXPECT_FALSE(desktop.IsOnView(program, again));
    // Two before the window was closed, one of the second time.
    EXPECT_EQ(SoundsIn(recording.Taken()).size(), 3U);
}

/// The window of the athan's settings, opened by its menu entry.
class AthanSettingsProgramTest : public AthanProgramTest {
protected:
    std::string OpenSettings(const ChildProcess& program) const {
        const auto windows = desktop.WindowsOf(program);
        Click(face, 143, 120);
        desktop.WaitForMenu(program, windows);
        desktop.PressKey("a");
        return desktop.WaitForWindow(program, "Athan Settings");
    }

    // The buttons of the Fajr group.
    static constexpr int kListen = 63;
    static constexpr int kPause = 151;
    static constexpr int kStop = 239;
    static constexpr int kButtons = 153;
};

TEST_F(AthanSettingsProgramTest, SoundIsTriedPausedResumedAndStopped) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    const std::string settings = OpenSettings(program);
    Click(settings, kListen, kButtons);
    const std::size_t start = recording.WaitForSound();
    recording.Continue(2.0);
    desktop.SaveScreen("athan-settings");
    Click(settings, kPause, kButtons);
    const std::size_t paused = recording.WaitForSilence(start);
    Click(settings, kPause, kButtons);
    const std::size_t resumed = recording.WaitForSound(paused);
    recording.Continue(1.0);
    Click(settings, kStop, kButtons);
    const std::size_t stopped = recording.Taken().size();
    EXPECT_LT((Stretch{stopped, recording.WaitForSilence(stopped)}.Seconds()), 0.3);
    EXPECT_GT((Stretch{start, paused}.Seconds()), 1.9);
    EXPECT_GT(resumed, paused);
}

TEST_F(AthanSettingsProgramTest, AthanThatComesUpOverItCanBeStopped) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    OpenSettings(program);
    GoTo(3);
    const std::string window = WaitForAthan(program);
    const std::size_t start = recording.WaitForSound();
    SetClock(SecondOf(3) + 60);
    PressStop(window);
    WaitUntil("no window", [&] { return !IsOnView(program); });
    recording.WaitForSilence(start);
}

TEST_F(AthanSettingsProgramTest, AthanThatIsUpCanBeStoppedOnceItIsOpened) {
    const ChildProcess program = Start();
    GoTo(3);
    const std::string window = WaitForAthan(program);
    SetClock(SecondOf(3) + 60);
    OpenSettings(program);
    PressStop(window);
    WaitUntil("no window", [&] { return !IsOnView(program); });
}

TEST_F(AthanProgramTest, AthanCanBeStoppedWhileAFileDialogueIsOpenAndTheClockRunsOn) {
    const ChildProcess program = Start();
    GoTo(3);
    const std::string window = WaitForAthan(program);
    SetClock(SecondOf(3) + 60);
    Click(face, 78, 120);
    desktop.WaitForMenu(program, {face, window});
    for (const char* key : {"Down", "Down"}) {  // the export
        desktop.PressKey(key);
    }
    const auto menu = desktop.WindowsOf(program);
    desktop.PressKey("Return");
    const std::string dialogue = desktop.WaitForAnother(program, menu);
    ExpectTicks();
    PressStop(window);
    EXPECT_TRUE(WaitUntil("no window", [&] { return !IsOnView(program); }));
    EXPECT_TRUE(desktop.IsOnView(program, dialogue));
}

/// Memory of the program's own. What it shares with others would change as they come and go.
long AnonymousKilobytes(const ChildProcess& program) {
    std::ifstream in("/proc/" + std::to_string(program.Id()) + "/smaps_rollup");
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("Anonymous:")) {
            return std::stol(line.substr(10));
        }
    }
    return 0;
}

TEST_F(AthanProgramTest, HourOfSoundTakesNoMoreMemoryThanSeconds) {
    const auto memoryWhilePlaying = [this](const Samples& samples) {
        SetSound("athan", samples);
        SetClock(12 * 3600);
        const SinkRecording recording(*sound);
        const ChildProcess program = Start();
        const long before = AnonymousKilobytes(program);
        GoTo(3);
        recording.WaitForSound();
        recording.Continue(4.0);
        return AnonymousKilobytes(program) - before;
    };
    Samples hour;
    hour.reserve(std::size_t{3600} * kWavRate);
    for (int i = 0; i < 180; ++i) {
        hour.insert(hour.end(), others.begin(), others.end());
    }
    const long seconds = memoryWhilePlaying(others);
    const long whole = memoryWhilePlaying(hour);
    std::cout << "playing takes " << seconds << " KiB, an hour " << whole << " KiB\n";
    EXPECT_LT(whole, seconds + 1024);
}

}  // namespace
}  // namespace horavex
