// The window "Athan and Reminders" as a user meets it, by the keyboard alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/harness/athan_fixture.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/wait_until.h"
#include "support/run_program.h"

namespace horavex {
namespace {

using testing::HasSubstr;

class RemindersWindowTest : public AthanProgramTest {
protected:
    std::string Open(const ChildProcess& program) const {
        const auto windows = desktop.WindowsOf(program);
        Click(face, 143, 120);
        desktop.WaitForMenu(program, windows);
        desktop.PressKey("r");
        std::string window = desktop.WaitForWindow(program, "Athan and Reminders");
        desktop.Use({"xdotool", "windowactivate", "--sync", window});  // it gets the keys now
        return window;
    }

    /// Of half a second.
    static double LevelOf(const Samples& samples, std::size_t place) {
        return RootMeanSquare(samples, place, kWavRate / 2);
    }

    std::string Options() const { return ContentOf(desktop / "config/horavex/registry.ini"); }
};

TEST_F(RemindersWindowTest, TestToneIsHeardAndEscapeClosesTheWindow) {
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    const std::string window = Open(program);
    desktop.PressKey("alt+t");
    const std::size_t start = recording.WaitForSound();
    desktop.SaveScreen("reminders");
    const std::size_t end = recording.WaitForSilence(start);
    EXPECT_LT((Stretch{start, end}.Seconds()), 3.0);
    desktop.PressKey("Escape");
    EXPECT_TRUE(WaitUntil("no window", [&] { return !desktop.IsOnView(program, window); }));
}

TEST_F(RemindersWindowTest, ListenSoundsAtTheChosenVolumeUntilTheWindowCloses) {
    StoreOptions({{"Athan Volume Fajr", "50"}});
    const SinkRecording recording(*sound);
    const ChildProcess program = Start();
    Open(program);
    for (const char* key : {"Tab", "Tab", "Tab", "space"}) {  // sound, volume, listen
        desktop.PressKey(key);
    }
    const std::size_t start = recording.WaitForSound();
    recording.Continue(1.0);
    const Samples heard = recording.Taken();
    EXPECT_NEAR(LevelOf(heard, start + kWavRate / 4) / LevelOf(fajr, kWavRate / 4), 0.125, 0.02);
    desktop.PressKey("alt+c");
    const std::size_t pressed = recording.Taken().size();
    EXPECT_LT((Stretch{pressed, recording.WaitForSilence(pressed)}.Seconds()), 2.0);
}

TEST_F(RemindersWindowTest, WhatTheKeyboardChoosesIsStoredByOK) {
    const ChildProcess program = Start();
    const std::string window = Open(program);
    desktop.PressKey("space");
    EXPECT_THAT(Options(), testing::Not(HasSubstr("Athan Fajr")));
    desktop.PressKey("alt+o");
    EXPECT_TRUE(WaitUntil("no window", [&] { return !desktop.IsOnView(program, window); }));
    EXPECT_THAT(Options(), HasSubstr("Athan Fajr"));
}

TEST_F(RemindersWindowTest, TestWithoutASoundServerLeavesTheProgramRunning) {
    const ChildProcess program = Start();
    sound.reset();
    const std::string window = Open(program);
    desktop.PressKey("alt+t");
    desktop.SaveScreen("reminders-no-server");
    desktop.PressKey("Escape");  // the window hides the clock
    WaitUntil("no window", [&] { return !desktop.IsOnView(program, window); });
    ExpectTicks();
    EXPECT_TRUE(program.IsRunning());
}

}  // namespace
}  // namespace horavex
