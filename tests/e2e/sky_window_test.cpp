// The windows "Sky" and "Crescent" as a user meets them, by the keyboard alone.

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/screen_reader.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

constexpr const char* kSavedMap =
    "Crescent of Sha'ban 1448, evening of 9 January 2027, criterion of Yallop";

bool CanBePressed(const std::string& button, const std::string& tree) {
    std::istringstream in(tree);
    for (std::string line; std::getline(in, line);) {
        if (line.find("push button | " + button) != line.npos) {
            return line.find(" | disabled") == line.npos;
        }
    }
    return false;
}

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
    const ScreenReader reader(desktop);
    const ChildProcess program = StartProgram();
    const std::string crescent = OpenTool(program, "r", "Crescent");
    desktop.PressKey("alt+n");  // the next month
    reader.WaitFor("Evening of the map: 9 January 2027");
    EXPECT_TRUE(WaitUntil("a complete map, which alone can be saved",
                          [&] { return CanBePressed("Save Map", reader.Tree()); }));
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
