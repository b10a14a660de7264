// The built program in a terminal of its own, driven by keys, its screens read as a user reads
// them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "e2e/harness/faked_clock.h"
#include "support/build_folder.h"
#include "support/registry_values.h"
#include "support/temporary_folder.h"
#include "terminal/virtual_terminal.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kAfterNoon = "2026-11-21 09:30:00";  // in Mecca 12:30
constexpr const char* kBeforeAsr = "2026-11-21 12:15:19";  // in Mecca a second before it

std::size_t CountOf(const std::string& part, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

/// Keeps a screen to be looked at, in the folder of the pictures.
void Keep(const std::string& name, const std::string& screen) {
    fs::create_directories(BuildPath("screenshots"));
    std::ofstream(BuildPath("screenshots/terminal-" + name + ".txt")) << screen;
}

/// A user of a machine in Mecca, whose clock the test sets.
class TerminalProgramTest : public testing::Test {
protected:
    TerminalProgramTest() {
        for (const char* folder : {"config", "data", "run"}) {
            fs::create_directories(home / folder);
        }
        clock.InstallIn(variables);
    }

    /// Whoever has settings gets no wizard.
    void StoreSettings() const { StoreUsersRegistryValue(home / "config", "Isha Dep Angle", "18"); }

    /// In which the program runs beside the one of the session before.
    void BeginAnotherSession() {
        variables["XDG_RUNTIME_DIR"] += "-next";
        fs::create_directories(variables["XDG_RUNTIME_DIR"]);
    }

    static void OpenSettingsMenu(VirtualTerminal& terminal) {
        terminal.Type(key::kF10);
        terminal.WaitFor("Athan Now");
        terminal.Type(key::kRight);
        terminal.WaitFor("Configuration Wizard");
    }

    static void StopAndContinue(VirtualTerminal& terminal) {
        terminal.Signal(SIGTSTP);
        terminal.WaitUntil([&](const std::string&) { return !terminal.IsOnOtherScreen(); },
                           "the stop");
        terminal.WaitForStop();  // what goes on before it has stopped would stop for ever
        terminal.Signal(SIGCONT);
        terminal.WaitUntil([&](const std::string&) { return terminal.IsOnOtherScreen(); },
                           "the return");
    }

    TemporaryFolder home;
    FakedClock clock{kAfterNoon};
    Environment variables = {{"HOME", home.Path()},
                             {"PATH", std::getenv("PATH")},
                             {"XDG_CONFIG_HOME", home / "config"},
                             {"XDG_DATA_HOME", home / "data"},
                             {"XDG_CONFIG_DIRS", home / "machine"},
                             {"XDG_RUNTIME_DIR", home / "run"},
                             {"TERM", "screen-256color"},
                             {"LC_ALL", "C.UTF-8"},
                             {"TZ", "Asia/Riyadh"}};
};

TEST_F(TerminalProgramTest, FirstRunGoesThroughTheWizardToTheFace) {
    VirtualTerminal terminal({}, variables);
    Keep("wizard", terminal.WaitFor("Configuration Wizard"));
    terminal.Type("\x1bs");  // Set City
    terminal.WaitFor("Choose a City");
    terminal.WaitUntil([](const std::string& text) { return CountOf("Mecca, Mecca", text) == 1; },
                       "the cities of a country");
    terminal.Type("Suez");
    terminal.WaitFor("Ain Sukhna, Suez - Egypt");
    terminal.Type(key::kDown);
    // The list of its country comes as far as this city once it is filled and the city selected.
    Keep("city", terminal.WaitUntil(
                     [](const std::string& text) { return CountOf("Suez, Suez", text) == 2; },
                     "the city in the list of its country"));
    terminal.Type(key::kEnter);
    terminal.WaitFor("Picked city:  Suez, Suez - Egypt");
    for (const char* page : {"Set Time-Zone", "Begins on", "Depression Angles"}) {
        terminal.Type("\x1bn");  // Next
        terminal.WaitFor(page);
    }
    terminal.Type(
        "\x1b"
        "f");  // Finish
    terminal.WaitForNo("Depression Angles");
    terminal.WaitFor("Next Athan: Asr");
    const std::string face = terminal.WaitFor("Suez, Suez - Egypt\n");
    Keep("face", face);
    EXPECT_THAT(face, HasSubstr("Saturday, 21 November 2026"));
    EXPECT_THAT(face, HasSubstr("▸ Asr                   02:31 PM"));
    EXPECT_THAT(ContentOf(home / "config/horavex/registry.ini"), HasSubstr("Isha Dep Angle"));
}

TEST_F(TerminalProgramTest, ChangedSettingIsStored) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Asr                   03:15 PM");
    OpenSettingsMenu(terminal);
    terminal.Type(key::kEnter);
    terminal.WaitFor("Horavex Settings");
    terminal.Type(key::kRight);  // the tabs have the focus
    Keep("settings", terminal.WaitFor("( ) Hanafi"));
    terminal.Type(key::kTab);
    for (int line = 0; line < 5; ++line) {
        terminal.Type(key::kDown);
    }
    terminal.Type(" ");
    terminal.WaitFor("(•) Hanafi");
    terminal.Type("\x1bs");  // Set
    terminal.WaitForNo("Horavex Settings");
    terminal.WaitForNo("Asr                   03:15 PM");
}

TEST_F(TerminalProgramTest, DaysTableIsTurned) {
    StoreSettings();
    VirtualTerminal terminal({}, variables, 50, 132);
    terminal.WaitFor("Next Athan: Asr");
    OpenSettingsMenu(terminal);
    terminal.Type("p");
    terminal.Type(key::kEnter);
    Keep("day", terminal.WaitFor("Saturday, November 21, 2026"));
    for (int button = 0; button < 2; ++button) {
        terminal.Type(key::kTab);
    }
    terminal.Type(" ");
    terminal.WaitFor("Sunday, November 22, 2026");
    terminal.Type(key::kEscape);
    terminal.WaitForNo("Previous Day");
}

TEST_F(TerminalProgramTest, AthanArrivesAndIsStopped) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    clock.Set(kBeforeAsr);
    Keep("athan", terminal.WaitFor("■ Stop"));
    terminal.Type(key::kEnter);
    terminal.WaitForNo("■ Stop");
    terminal.WaitFor("Next Athan: Maghrib");
}

TEST_F(TerminalProgramTest, EndGivesTheTerminalBack) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    EXPECT_TRUE(terminal.IsOnOtherScreen());
    terminal.Type("q");
    EXPECT_EQ(terminal.Wait(), 0);
    EXPECT_FALSE(terminal.IsOnOtherScreen());
}

TEST_F(TerminalProgramTest, SignalsEndItInOrder) {
    StoreSettings();
    std::map<int, VirtualTerminal> terminals;  // all at once, as a start takes its seconds
    for (const int signal : {SIGTERM, SIGINT, SIGQUIT, SIGHUP}) {
        BeginAnotherSession();
        terminals.try_emplace(signal, std::vector<std::string>{}, variables);
    }
    for (auto& [signal, terminal] : terminals) {
        terminal.WaitFor("Next Athan: Asr");
        terminal.Signal(signal);
        EXPECT_EQ(terminal.Wait(), 0) << signal;
        EXPECT_FALSE(terminal.IsOnOtherScreen()) << signal;
    }
}

TEST_F(TerminalProgramTest, StopGivesTheTerminalBackForAWhile) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    StopAndContinue(terminal);
    terminal.WaitFor("Next Athan: Asr");
}

TEST_F(TerminalProgramTest, StopWhileTheScreenIsDrawnIsNotLost) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    for (int i = 0; i < 5; ++i) {
        terminal.Type(std::string(100, '\f'));  // each draws all of it anew
        const std::size_t before = terminal.Written().size();
        terminal.WaitUntil([&](const std::string&) { return terminal.Written().size() > before; },
                           "the first drawing");
        StopAndContinue(terminal);
    }
}

TEST_F(TerminalProgramTest, KeyBehindTheEscapeKeyIsNotLost) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    OpenSettingsMenu(terminal);
    terminal.Type(std::string(key::kEscape) + key::kF10);
    terminal.WaitFor("Athan Now");
}

TEST_F(TerminalProgramTest, KeyWithoutUseHoldsUpNoneBehindIt) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    terminal.Type(std::string(key::kF2) + key::kF10);
    terminal.WaitFor("Athan Now");
}

TEST_F(TerminalProgramTest, EscapeKeyIsWaitedOutAsLongAsTheUserHasSet) {
    StoreSettings();
    variables["ESCDELAY"] = "60000";
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    terminal.Type(key::kEscape);
    terminal.WaitForSilence();
    terminal.Type("[21~");  // the rest of F10
    terminal.WaitFor("Athan Now");
}

TEST_F(TerminalProgramTest, ControlAndLDrawTheWholeScreenAnew) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    const std::size_t before = CountOf("Next Athan: Asr", terminal.Written());
    terminal.Type("\f");
    terminal.WaitUntil(
        [&](const std::string&) { return CountOf("Next Athan: Asr", terminal.Written()) > before; },
        "the screen anew");
}

TEST_F(TerminalProgramTest, NoColourIsWrittenWhereNoneIsWanted) {
    StoreSettings();
    const std::regex colour("\x1b\\[[0-9;]*[34][0-8][;m]");
    VirtualTerminal coloured({}, variables);
    BeginAnotherSession();
    variables["NO_COLOR"] = "1";
    VirtualTerminal plain({}, variables);
    coloured.WaitFor("Next Athan: Asr");
    plain.WaitFor("Next Athan: Asr");
    EXPECT_TRUE(std::regex_search(coloured.Written(), colour));
    EXPECT_FALSE(std::regex_search(plain.Written(), colour));
}

TEST_F(TerminalProgramTest, AnotherSizeIsTaken) {
    StoreSettings();
    VirtualTerminal terminal({}, variables);
    terminal.WaitFor("Next Athan: Asr");
    terminal.Resize(10, 30);
    terminal.WaitFor("Horavex: 40 × 16");
    terminal.Resize(50, 132);
    Keep("large", terminal.WaitUntil(
                      [](const std::string& text) {
                          return std::regex_search(text, std::regex("\n {40,}Next Athan: Asr"));
                      },
                      "the face in the middle of a large screen"));
}

TEST_F(TerminalProgramTest, NoTerminalIsSaidInOneLine) {
    const ProgramRun run = RunProgram("horavex-terminal", {}, variables);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
              "horavex-terminal: needs a terminal; horavexctl prints the times without one\n");
}

TEST_F(TerminalProgramTest, TerminalWithoutACursorIsSaidInOneLine) {
    variables["TERM"] = "dumb";
    VirtualTerminal terminal({}, variables);
    EXPECT_EQ(terminal.Wait(), 2);
    EXPECT_THAT(terminal.Written(), HasSubstr("the terminal \"dumb\" cannot move its cursor"));
    EXPECT_EQ(CountOf("\n", terminal.Written()), 1u);
}

}  // namespace
}  // namespace horavex
