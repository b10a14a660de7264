#include <gmock/gmock.h>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using testing::IsEmpty;

constexpr const char* kHelpTitle = "Horavex Help";

class HelpProgramTest : public ProgramFixture {
protected:
    /// Chooses an entry of the face's help menu, the first one by number 1.
    void ChooseHelpEntry(const ChildProcess& program, const std::string& face, int number) const {
        const auto windows = desktop.WindowsOf(program);
        desktop.Click(face, 257, 120);
        desktop.WaitForMenu(program, windows);
        for (int step = 0; step < number; ++step) {
            desktop.PressKey("Down");
        }
        desktop.PressKey("Return");
    }
};

TEST_F(HelpProgramTest, HelpKeyOnTheFaceOpensTheHelpAndEscapeClosesIt) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    desktop.Use({"xdotool", "windowactivate", "--sync", face, "key", "F1"});
    const std::string help = desktop.WaitForWindow(program, kHelpTitle);
    desktop.SaveScreen("help");
    desktop.Use({"xdotool", "windowactivate", "--sync", help, "key", "Escape"});
    EXPECT_TRUE(WaitUntil("a closed help", [&] { return !desktop.IsOnView(program, help); }));
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

TEST_F(HelpProgramTest, HelpOverTheModalAboutWindowCanBeReadAndOutlivesIt) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    ChooseHelpEntry(program, face, 1);
    const std::string about = desktop.WaitForWindow(program, "About Horavex");
    desktop.SaveScreen("about");
    desktop.Use({"xdotool", "windowactivate", "--sync", about, "key", "F1"});
    const std::string help = desktop.WaitForWindow(program, kHelpTitle);
    desktop.SaveScreen("help-over-about");
    // A user of the viewer, which a modal window would otherwise shut out.
    desktop.Use({"xdotool", "windowactivate", "--sync", help, "key", "Escape"});
    EXPECT_TRUE(WaitUntil("a closed help", [&] { return !desktop.IsOnView(program, help); }));
    desktop.Use({"xdotool", "windowactivate", "--sync", about, "key", "F1"});
    desktop.WaitForWindow(program, kHelpTitle);
    desktop.Use({"xdotool", "windowactivate", "--sync", about, "key", "Tab", "key", "space"});
    EXPECT_TRUE(WaitUntil("a closed About", [&] { return !desktop.IsOnView(program, about); }));
    EXPECT_TRUE(desktop.IsOnView(program, desktop.WaitForWindow(program, kHelpTitle)));
}

TEST_F(HelpProgramTest, HelpSpeaksArabicFromTheRight) {
    desktop.StoreRegistryValue("Language", "Arabic");
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    desktop.Use({"xdotool", "windowactivate", "--sync", face, "key", "F1"});
    EXPECT_TRUE(desktop.IsOnView(program, desktop.WaitForWindow(program, "مساعدة Horavex")));
    desktop.SaveScreen("help-arabic");
}

}  // namespace
}  // namespace horavex
