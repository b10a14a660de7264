// The face as one line and over the whole screen, by the keyboard alone.

#include <gtest/gtest.h>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

class FaceShapesProgramTest : public ProgramFixture {
protected:
    void WaitForHeight(const std::string& window, int height) const {
        EXPECT_TRUE(WaitUntil("a height of " + std::to_string(height),
                              [&] { return desktop.PlaceOf(window).height == height; }));
    }

    // A shape is stored behind its first picture.
    void WaitForStored(const std::string& value) const {
        WaitUntil(value, [&] { return StoredValues().find(value) != std::string::npos; });
    }
    void WaitForNoneStored(const std::string& value) const {
        WaitUntil("no " + value, [&] { return StoredValues().find(value) == std::string::npos; });
    }

    /// Opens the menu "Settings" and chooses the entry of a key.
    void ChooseSetting(const ChildProcess& program, const std::string& face,
                       const char* key) const {
        desktop.Use({"xdotool", "windowactivate", "--sync", face});
        const auto windows = desktop.WindowsOf(program);
        desktop.PressKey("alt+s");
        desktop.WaitForMenu(program, windows);
        desktop.PressKey(key);
    }
};

TEST_F(FaceShapesProgramTest, FaceBecomesALineAndComesBack) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    ChooseSetting(program, face, "m");
    WaitForHeight(face, 44);
    WaitForStored("Face Small=1");
    desktop.SaveScreen("face-small");
    LetSecondsPass(2);
    desktop.PressKey("Return");
    WaitForHeight(face, 500);
    WaitForNoneStored("Face Small");
}

TEST_F(FaceShapesProgramTest, F11FillsTheScreenAndEscapeLeavesIt) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    desktop.Use({"xdotool", "windowactivate", "--sync", face});
    const auto windows = desktop.WindowsOf(program);
    desktop.PressKey("F11");
    const std::string poster = desktop.WaitForAnother(program, windows, 900);
    EXPECT_EQ(desktop.PlaceOf(poster).width, 1280);
    LetSecondsPass(2);
    desktop.SaveScreen("face-full-screen");
    WaitForStored("Face Full Screen=1");
    desktop.PressKey("Escape");
    EXPECT_TRUE(WaitUntil("the face alone", [&] { return !desktop.IsOnView(program, poster); }));
    EXPECT_TRUE(desktop.IsOnView(program, face));
    WaitForNoneStored("Face Full Screen");
}

TEST_F(FaceShapesProgramTest, ArrowKeysGoFromMenuToMenu) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    desktop.Use({"xdotool", "windowactivate", "--sync", face});
    auto windows = desktop.WindowsOf(program);
    desktop.PressKey("F10");
    const std::string athan = desktop.WaitForMenu(program, windows);
    desktop.PressKey("Left");
    windows.push_back(athan);
    const std::string help = desktop.WaitForMenu(program, windows);
    desktop.SaveScreen("face-menu");
    EXPECT_EQ(desktop.PlaceOf(help).x, desktop.PlaceOf(face).x + 200);
    desktop.PressKey("Escape");
}

}  // namespace
}  // namespace horavex
