#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/tray_host.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using testing::HasSubstr;

/// The program's icon in a panel that embeds windows of others.
class TrayTest : public ProgramFixture {
protected:
    /// Waits for the icon's own window, which is as high as the panel.
    std::string WaitForIcon(const ChildProcess& program) {
        return WaitUntil("an icon",
                         [&]() -> std::optional<std::string> {
                             for (const std::string& window : desktop.WindowsOf(program)) {
                                 const int height = desktop.PlaceOf(window).height;
                                 if (height >= 16 && height <= 32) {
                                     return window;
                                 }
                             }
                             return std::nullopt;
                         })
            .value();
    }

    /// Does it over and over with time to work in between, until the test is true: a face that has
    /// just come up may still be moved, or not be active yet, while the user's doing is on its way.
    static bool DoUntil(const std::string& what, const std::function<void()>& act,
                        const std::function<bool()>& test) {
        constexpr int kLooks = 100;
        return WaitUntil(what, [&, looks = 0]() mutable {
            if (looks++ % kLooks == 0) {
                act();
            }
            return test();
        });
    }

    /// Presses the face's button, which lies where it was once the face no longer moves.
    void CloseFace(const std::string& face, const std::function<bool()>& isClosed) {
        DoUntil(
            "a closed face",
            [&] {
                desktop.Use({"xdotool", "mousemove", "--window", face, "100", "300"});
                desktop.Click(face, 397, 23);
            },
            isClosed);
    }

    void HideFace(const ChildProcess& program, const std::string& face) {
        CloseFace(face, [&] { return !desktop.IsOnView(program, face); });
    }

    /// A modal window.
    void OpenPrayerTimes(const ChildProcess& program, const std::string& face) {
        DoUntil(
            "the window Prayer Times",
            [&] {
                // The pointer is seen to come.
                desktop.Use({"xdotool", "mousemove", "--window", face, "100", "300"});
                desktop.Click(face, 136, 468);
            },
            [&] {
                const auto windows = desktop.WindowsOf(program);
                return std::any_of(windows.begin(), windows.end(), [&](const auto& window) {
                    return desktop.TitleOf(window) == "Prayer Times";
                });
            });
    }

    /// Leaves by the icon's menu.
    void Exit(ChildProcess& program, const std::string& icon) const {
        const auto windows = desktop.WindowsOf(program);
        desktop.Click(icon, 8, 8, 3);
        const std::string menu = desktop.WaitForMenu(program, windows);
        desktop.SaveScreen("tray-menu-exit");
        desktop.ChooseLastEntry(menu);
        EXPECT_EQ(program.Wait(), 0);
    }
};

TEST_F(TrayTest, ClosedFaceComesBackByADoubleClick) {
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    const std::string icon = WaitForIcon(program);
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    LetSecondsPass(1);
    desktop.SaveScreen("tray");
    HideFace(program, face);
    desktop.Use({"xdotool", "mousemove", "--window", icon, "8", "8", "click", "--repeat", "2",
                 "--delay", "60", "1"});
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
}

TEST_F(TrayTest, CloseRequestOfTheManagerHidesTheFace) {
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    WaitForIcon(program);
    EXPECT_TRUE(DoUntil(
        "a hidden face",
        [&] {
            desktop.Use({"xdotool", "windowactivate", face, "sleep", "0.2", "key", "alt+F4"});
        },
        [&] { return !desktop.IsOnView(program, face); }));
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(TrayTest, SingleClickDoesNothingAndTheRightButtonOpensTheMenuAsItIsLetGo) {
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    const auto windows = desktop.WindowsOf(program);
    desktop.Click(icon, 8, 8);
    desktop.Use({"xdotool", "mousemove", "--window", icon, "8", "8", "mousedown", "3"});
    LetSecondsPass(2);
    EXPECT_THAT(desktop.WindowsOf(program), testing::UnorderedElementsAreArray(windows));
    desktop.Use({"xdotool", "mouseup", "3"});
    EXPECT_NE(desktop.WaitForMenu(program, windows), "");
    desktop.SaveScreen("tray-menu");
}

TEST_F(TrayTest, ExitOfTheIconsMenuEndsTheProgram) {
    const TrayHost host(desktop.variables);
    ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    Exit(program, icon);
    EXPECT_THAT(StoredValues(), HasSubstr("Language=English"));
}

TEST_F(TrayTest, PointingAtTheIconBringsTheTip) {
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    LetSecondsPass(1);
    const auto windows = desktop.WindowsOf(program);
    desktop.Use({"xdotool", "mousemove", "--window", icon, "7", "8"});
    desktop.Use({"xdotool", "mousemove_relative", "1", "1"});
    EXPECT_NE(desktop.WaitForAnother(program, windows), "");
    desktop.SaveScreen("tray-tip");
}

TEST_F(TrayTest, PanelThatComesLaterGetsTheIcon) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    const TrayHost host(desktop.variables);
    EXPECT_NE(WaitForIcon(program), "");
}

TEST_F(TrayTest, PanelThatStartsAnewGetsTheIconAgain) {
    auto host = std::make_unique<TrayHost>(desktop.variables);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    host.reset();
    WaitUntil("no icon", [&] { return !desktop.IsOnView(program, icon); });
    host = std::make_unique<TrayHost>(desktop.variables);
    EXPECT_NE(WaitForIcon(program), "");
}

TEST_F(TrayTest, IconWorksWhileAModalWindowIsOpen) {
    const TrayHost host(desktop.variables);
    ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    LetSecondsPass(1);
    OpenPrayerTimes(program, face);
    Exit(program, icon);
}

TEST_F(TrayTest, PointingAtTheIconBringsTheTipWhileAModalWindowIsOpen) {
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const std::string icon = WaitForIcon(program);
    LetSecondsPass(1);
    OpenPrayerTimes(program, face);
    const auto windows = desktop.WindowsOf(program);
    desktop.Use({"xdotool", "mousemove", "--window", icon, "7", "8"});
    desktop.Use({"xdotool", "mousemove_relative", "1", "1"});
    EXPECT_NE(desktop.WaitForAnother(program, windows), "");
}

TEST_F(TrayTest, IconFitsAPanelOnAScreenOfDoubleDensity) {
    programVariables["QT_SCALE_FACTOR"] = "2";
    const TrayHost host(desktop.variables);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    EXPECT_LE(desktop.PlaceOf(WaitForIcon(program)).height, 26);
    LetSecondsPass(1);
    desktop.SaveScreen("tray-double");
}

TEST_F(TrayTest, HiddenFaceComesBackMinimisedWhenThePanelGoes) {
    auto host = std::make_unique<TrayHost>(desktop.variables);
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    WaitForIcon(program);
    LetSecondsPass(1);
    HideFace(program, face);
    host.reset();
    EXPECT_TRUE(WaitUntil("a minimised face", [&] {
        return desktop.Use({"xprop", "-id", face, "WM_STATE"}).find("Iconic") != std::string::npos;
    }));
    desktop.Use({"xdotool", "windowactivate", "--sync", face});
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
}

TEST_F(TrayTest, WithoutAPanelClosingMinimisesAndSaysSoOnce) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const auto isMinimised = [&] {
        return desktop.Use({"xprop", "-id", face, "WM_STATE"}).find("Iconic") != std::string::npos;
    };
    const auto message = [&]() -> std::optional<std::string> {
        for (const std::string& window : desktop.WindowsOf(program)) {
            if (window != face) {
                return window;
            }
        }
        return std::nullopt;
    };
    CloseFace(face, [&] { return message().has_value(); });
    const std::string box = message().value();
    desktop.SaveScreen("no-tray");
    desktop.Use({"xdotool", "windowactivate", "--sync", box, "key", "Return"});
    EXPECT_TRUE(WaitUntil("a minimised face", isMinimised));
    EXPECT_FALSE(message());
    desktop.Use({"xdotool", "windowactivate", "--sync", face});
    CloseFace(face, isMinimised);
    EXPECT_FALSE(message());
    EXPECT_TRUE(program.IsRunning());
}

}  // namespace
}  // namespace horavex
