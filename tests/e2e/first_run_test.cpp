// A first run from an empty home folder, by the keyboard alone and by the mouse: to a face with
// the right times, which a restart shows again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <sstream>
#include <utility>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/screen_reader.h"
#include "e2e/harness/wait_until.h"
#include "store/settings_record.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kWizardTitle = "Horavex Prayer Times Configuration Wizard";
constexpr const char* kPickerTitle = "Choose a City";
constexpr const char* kSettingsTitle = "Horavex Settings";

class FirstRunTest : public ProgramFixture {
protected:
    FirstRunTest() { desktop.variables["XDG_CONFIG_DIRS"] = desktop / "nothing"; }

    ScreenReader reader{desktop};

    /// The computer's zone, written out so that it needs no zone files.
    void LiveIn(const std::string& zone) { desktop.variables["TZ"] = zone; }

    std::string StoredFile(const std::string& name) const {
        return desktop / ("data/horavex/Dat/" + name);
    }

    SettingsRecord Stored(const std::string& file) const {
        const std::string content = ContentOf(StoredFile(file));
        SettingsBytes bytes{};
        EXPECT_EQ(content.size(), bytes.size()) << file;
        std::copy_n(content.begin(), std::min(content.size(), bytes.size()), bytes.begin());
        return DecodeSettings(bytes);
    }

    /// Keys at the pace of a hand: a button that is pressed by its letter stays down for a moment
    /// and takes no other press meanwhile.
    void Press(const std::string& window, const std::vector<std::string>& keys) const {
        std::vector<std::string> words = {"xdotool", "windowactivate", "--sync", window,
                                          "key",     "--delay",        "400"};
        words.insert(words.end(), keys.begin(), keys.end());
        desktop.Use(words);
    }

    void WaitUntilGone(const ChildProcess& program, const std::string& window) const {
        WaitUntil("the end of a window", [&] { return !desktop.IsOnView(program, window); });
    }

    /// Whether a window goes away in the time that a press may take on a busy machine.
    bool Goes(const ChildProcess& program, const std::string& window) const {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
        while (std::chrono::steady_clock::now() < end) {
            if (!desktop.IsOnView(program, window)) {
                return true;
            }
        }
        return false;
    }

    /// Types a name into the picker, which stands open: the first Enter shows the best hit in the
    /// lists, the next accepts it, unless the cities are still coming in.
    void PickCity(const ChildProcess& program, const std::string& name) const {
        const std::string picker = desktop.WaitForWindow(program, kPickerTitle);
        desktop.Use({"xdotool", "windowactivate", "--sync", picker, "type", name});
        desktop.SaveScreen("first-run-picker-" + name);
        Press(picker, {"Return"});
        WaitUntil("the end of the picker", [&] {
            Press(picker, {"Return"});
            return Goes(program, picker);
        });
    }

    /// Waits until a commit is through; the working record is the last that it writes.
    void WaitForCommit() const {
        WaitUntil("a commit", [&] { return fs::exists(StoredFile("Settings.DAT")); });
    }

    void FinishWizard(const ChildProcess& program, const std::string& city) const {
        const std::string wizard = desktop.WaitForWindow(program, kWizardTitle);
        Press(wizard, {"alt+s"});
        PickCity(program, city);
        Press(wizard, {"alt+n", "alt+z", "alt+n", "alt+n"});
        desktop.SaveScreen("first-run-wizard-" + city);
        Press(wizard, {"alt+f"});
        WaitForCommit();
        WaitUntilGone(program, wizard);
    }

    int HeightOf(const std::string& window) const {
        const std::string picture = desktop / "window.png";
        desktop.Use({"import", "-window", window, picture});
        return std::stoi(desktop.Use({"identify", "-format", "%h", picture}));
    }

    /// The button at the wizard's lower right corner, wherever the height of its page puts it.
    void ClickNext(const std::string& wizard, int column) const {
        int height = 0;
        WaitUntil("a height that stays", [&] {
            const int former = std::exchange(height, HeightOf(wizard));
            return former == height;
        });
        const std::string before = desktop.Fingerprint();
        desktop.Click(wizard, column, height - 24);
        WaitUntil("another page", [&] { return desktop.Fingerprint() != before; });
    }

    /// The way through by the button of the computer's own city: five presses.
    void TakeOfferedCity(const ChildProcess& program) const {
        const std::string wizard = desktop.WaitForWindow(program, kWizardTitle);
        Press(wizard, {"alt+y"});
        desktop.SaveScreen("first-run-my-city");
        Press(wizard, {"alt+n", "alt+n", "alt+n", "alt+f"});
        WaitForCommit();
        WaitUntilGone(program, wizard);
    }

    /// The six times that the face tells a screen reader.
    std::string TimesOnFace() const {
        std::istringstream tree(reader.WaitFor("list item | Isha"));
        std::string times;
        for (std::string line; std::getline(tree, line);) {
            times += line.find("list item | ") == std::string::npos ? "" : line + "\n";
        }
        return times;
    }

    /// "times" of the command line's answer.
    std::string TimesToday(std::vector<std::string> options) const {
        options.insert(options.begin(), {"today", "--json", "--at", "2026-11-21T12:34:56"});
        const std::string printed = RunProgram("horavexctl", options, desktop.variables).out;
        const std::size_t at = printed.find("\"times\"");
        EXPECT_NE(at, std::string::npos) << printed;
        return printed.substr(at, printed.find('}', at) - at);
    }

    /// Starts once more: no wizard, the same face, the same record.
    void ExpectSameAfterRestart(ChildProcess& program, const std::string& times) {
        const SettingsRecord accepted = Stored("AI.DAT");
        program.Signal(SIGTERM);
        program.Wait();
        const ChildProcess again = StartProgram();
        desktop.WaitForWindow(again, kFaceTitle);
        LetSecondsPass(2);
        EXPECT_EQ(TimesOnFace(), times);
        EXPECT_EQ(desktop.WindowsOf(again).size(), 1U);
        EXPECT_EQ(Stored("AI.DAT"), accepted);
    }

    /// The wizard's way through, to a face with the times of these options.
    void GoThrough(const std::string& zone, const std::string& city,
                   const std::vector<std::string>& options) {
        LiveIn(zone);
        ChildProcess program = StartProgram();
        const std::string face = desktop.WaitForWindow(program, kFaceTitle);
        FinishWizard(program, city);
        desktop.Use({"xdotool", "windowactivate", "--sync", face});
        LetSecondsPass(2);
        const std::string times = TimesOnFace();
        desktop.SaveScreen("first-run-face-" + city);
        EXPECT_EQ(TimesToday({}), TimesToday(options));
        EXPECT_EQ(Stored("AI.DAT"), Stored("Settings.DAT"));
        ExpectSameAfterRestart(program, times);
    }
};

TEST_F(FirstRunTest, WizardOpensAndTheAngleIsStored) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kWizardTitle);
    EXPECT_THAT(StoredValues(), HasSubstr("Isha Dep Angle=18"));
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

TEST_F(FirstRunTest, EscapeCancelsTheWizardAndNothingIsStored) {
    const ChildProcess program = StartProgram();
    const std::string wizard = desktop.WaitForWindow(program, kWizardTitle);
    Press(wizard, {"Escape"});
    WaitUntilGone(program, wizard);
    EXPECT_FALSE(fs::exists(StoredFile("AI.DAT")));
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(FirstRunTest, CityInEgyptWithTheComputersZone) {
    GoThrough("EET-2EEST,M4.5.5/0,M10.5.4/24", "cairo",
              {"--city", "Cairo, Cairo", "--method", "egypt", "--zone", "2", "--fajr", "19.5",
               "--isha", "17.5", "--asr", "1"});
    EXPECT_EQ(Stored("AI.DAT").DstEnabled, 1);
    EXPECT_EQ(Stored("AI.DAT").DstStart, 114);  // Friday, 24 April
    EXPECT_EQ(Stored("AI.DAT").DstEnd, 302);    // Thursday, 29 October
    EXPECT_THAT(StoredValues(), HasSubstr("Isha Dep Angle=17.5"));
}

TEST_F(FirstRunTest, CityInIndonesiaWithTheComputersZone) {
    GoThrough("WIB-7", "jakarta",
              {"--city", "Jakarta, Jakarta", "--method", "indonesia", "--zone", "7"});
    EXPECT_EQ(Stored("AI.DAT").TimeZone, 7.0);
    EXPECT_EQ(Stored("AI.DAT").DstEnabled, 0);
}

class FirstRunAtHome : public FirstRunTest,
                       public testing::WithParamInterface<std::array<const char*, 3>> {};

TEST_P(FirstRunAtHome, IsFivePressesWithTheCityOfTheComputersZone) {
    const auto& [zone, locale, city] = GetParam();
    LiveIn(zone);
    desktop.variables["LC_ALL"] = locale;
    ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    TakeOfferedCity(program);
    EXPECT_EQ(TimesToday({}), TimesToday({"--city", city}));
    EXPECT_THAT(StoredValues(), HasSubstr("Automatic Zone=1"));
    desktop.Use({"xdotool", "windowactivate", "--sync", face});
    LetSecondsPass(2);
    ExpectSameAfterRestart(program, TimesOnFace());
}

INSTANTIATE_TEST_SUITE_P(Homes, FirstRunAtHome,
                         testing::Values(std::array{"America/New_York", "en_US.UTF-8",
                                                    "New York City, New York"},
                                         std::array{"Europe/Oslo", "nb_NO.UTF-8", "Oslo, Oslo"}),
                         [](const auto& home) { return std::string(home.param[1], 5); });

TEST_F(FirstRunTest, MouseGoesThroughTheWizardToo) {
    LiveIn("EET-2EEST,M4.5.5/0,M10.5.4/24");
    const ChildProcess program = StartProgram();
    const std::string wizard = desktop.WaitForWindow(program, kWizardTitle);
    desktop.Click(wizard, 557, 186);  // the city
    const std::string picker = desktop.WaitForWindow(program, kPickerTitle);
    desktop.Click(picker, 300, 20);
    desktop.Use({"xdotool", "type", "alexandria"});
    desktop.Click(picker, 104, 54);  // the best hit
    desktop.SaveScreen("first-run-mouse-picker");
    desktop.Click(picker, 508, 577);  // OK
    WaitUntilGone(program, picker);
    ClickNext(wizard, 568);
    desktop.Click(wizard, 376, 260);  // this computer's zone
    desktop.SaveScreen("first-run-mouse-zone");
    for (int page = 2; page <= 4; ++page) {
        ClickNext(wizard, 560 + page);  // the pointer has to move between two clicks
    }
    WaitForCommit();
    WaitUntilGone(program, wizard);
    EXPECT_EQ(Stored("AI.DAT").TimeZone, 2.0);
    EXPECT_EQ(Stored("AI.DAT").DstStart, 114);
    EXPECT_EQ(TimesToday({}), TimesToday({"--city", "Alexandria, Alexandria", "--zone", "2",
                                          "--fajr", "19.5", "--isha", "17.5", "--asr", "1"}));
}

TEST_F(FirstRunTest, CityAt52DegreesWithTheZoneTypedInTheSettingsWindow) {
    LiveIn("CET-1CEST,M3.5.0,M10.5.0/3");
    ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    Press(desktop.WaitForWindow(program, kWizardTitle), {"Escape"});
    const auto windows = desktop.WindowsOf(program);
    desktop.Click(face, 166, 120);
    desktop.WaitForMenu(program, windows);
    desktop.PressKey("Down");
    desktop.PressKey("Return");
    const std::string settings = desktop.WaitForWindow(program, kSettingsTitle);
    Press(settings, {"alt+c"});
    PickCity(program, "berlin");
    // The zone box holds the city's zone and has the keyboard; what is typed counts instead.
    Press(settings, {"ctrl+a", "1"});
    desktop.SaveScreen("first-run-settings-berlin");
    Press(settings, {"Return"});
    WaitForCommit();
    LetSecondsPass(2);
    EXPECT_EQ(Stored("AI.DAT").TimeZone, 1.0);
    EXPECT_EQ(Stored("AI.DAT").FajrAngle, 10.0);
    EXPECT_EQ(TimesToday({}),
              TimesToday({"--city", "Berlin, Berlin", "--zone", "1", "--fajr", "10", "--isha", "10",
                          "--asr", "1", "--high-latitude", "none"}));
    ExpectSameAfterRestart(program, TimesOnFace());
}

TEST_F(FirstRunTest, KillDuringACommitLeavesEachFileOldOrNew) {
    constexpr int kKills = 4;
    for (int kill = 0; kill < kKills; ++kill) {
        fs::remove_all(desktop / "data/horavex");
        fs::remove_all(desktop / "config/horavex");
        ChildProcess program = StartProgram();
        const std::string wizard = desktop.WaitForWindow(program, kWizardTitle);
        Press(wizard, {"alt+n", "alt+n", "alt+n", "alt+f"});

        // The first file of the commit, finished or not, gives the signal; later kills come later.
        const std::string folder = desktop / "data/horavex/Dat";
        const auto end = std::chrono::steady_clock::now() + kPatience;
        while (!fs::exists(folder) || fs::is_empty(folder)) {
            ASSERT_LT(std::chrono::steady_clock::now(), end);
        }
        const auto moment =
            std::chrono::steady_clock::now() + kill * std::chrono::microseconds(100);
        while (std::chrono::steady_clock::now() < moment) {
        }
        program.Signal(SIGKILL);
        program.Wait();
        for (const char* file : {"AI.DAT", "Settings.DAT"}) {
            if (fs::exists(StoredFile(file))) {
                EXPECT_EQ(Stored(file).DstStart, 121) << "the wizard's own days: the new record";
                EXPECT_EQ(Stored(file).DstEnd, 274);
                EXPECT_EQ(Stored(file).TimeZone, 3.0);
            }
        }
    }
}

}  // namespace
}  // namespace horavex
