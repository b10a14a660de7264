// The windows "Sky" and "Crescent" as a user meets them, by the keyboard alone.

#include <gmock/gmock.h>

#include <filesystem>
#include <utility>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

constexpr const char* kSavedMap =
    "Crescent of Sha'ban 1448, evening of 9 January 2027, criterion of Yallop";

class SkyProgramTest : public ProgramFixture {
protected:
    /// Opens a window by its letter in the face's tools menu, and waits for its title.
    std::string OpenTool(const ChildProcess& program, const char* letter,
                         const std::string& title) const {
        const std::string face = desktop.WaitForWindow(program, kFaceTitle);
        const auto windows = desktop.WindowsOf(program);
        desktop.Click(face, 200, 120);
        desktop.WaitForMenu(program, windows);
        desktop.PressKey(letter);
        return Activated(desktop.WaitForWindow(program, title));
    }

    std::string Activated(const std::string& window) const {
        desktop.Use({"xdotool", "windowactivate", "--sync", window});
        return window;
    }

    void PressForAnotherView(const std::string& key) const {
        const std::string before = desktop.Fingerprint();
        desktop.PressKey(key);
        EXPECT_TRUE(WaitUntil("another view", [&] { return desktop.Fingerprint() != before; }))
            << key;
    }

    void WaitForStillView() const {
        std::string before;
        EXPECT_TRUE(WaitUntil("a still view", [&] {
            const std::string last = std::exchange(before, desktop.Fingerprint());
            return last == before;
        }));
    }

    void ExpectClosedByEscape(const ChildProcess& program, const std::string& window) const {
        desktop.PressKey("Escape");
        EXPECT_TRUE(WaitUntil("no window", [&] { return !desktop.IsOnView(program, window); }));
    }
};

TEST_F(SkyProgramTest, OpensFromTheToolsMenuAndShowsItsPagesByTheArrowKeys) {
    const ChildProcess program = StartProgram();
    const std::string sky = OpenTool(program, "s", "Sky");
    desktop.SaveScreen("sky-1");
    for (const char* picture : {"sky-phases", "sky-eclipses", "sky-qibla"}) {
        PressForAnotherView("Right");
        desktop.SaveScreen(picture);
    }
    PressForAnotherView("alt+n");  // the next year
    ExpectClosedByEscape(program, sky);
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

TEST_F(SkyProgramTest, OpensFromTheMoonWindowAndGivesTheKeysBackToIt) {
    const ChildProcess program = StartProgram();
    const std::string moon = OpenTool(program, "m", "Moon Phases");
    desktop.SaveScreen("moon-with-sky");
    desktop.PressKey("alt+k");
    const std::string sky = Activated(desktop.WaitForWindow(program, "Sky"));
    ExpectClosedByEscape(program, sky);
    Activated(moon);
    ExpectClosedByEscape(program, moon);
}

TEST_F(SkyProgramTest, CrescentTurnsItsMonthAndSavesItsMapByTheKeyboard) {
    const ChildProcess program = StartProgram();
    const std::string crescent = OpenTool(program, "r", "Crescent");
    PressForAnotherView("alt+n");  // the next month
    WaitForStillView();            // until the map is complete there is nothing to save
    desktop.SaveScreen("crescent");
    desktop.PressKey("alt+s");
    Activated(desktop.WaitForWindow(program, kSavedMap));
    desktop.PressKey("ctrl+a");
    desktop.Use({"xdotool", "type", desktop / "map.svg"});
    desktop.PressKey("Return");
    EXPECT_TRUE(WaitUntil("the map", [&] { return fs::exists(desktop / "map.svg"); }));
    Activated(crescent);
    ExpectClosedByEscape(program, crescent);
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

}  // namespace
}  // namespace horavex
