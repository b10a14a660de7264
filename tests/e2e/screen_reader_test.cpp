// What users of a screen reader get from the program.

#include "e2e/harness/screen_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Beginnings of the lines of things that a user works with and that have no name.
std::vector<std::string> Nameless(const std::string& tree) {
    static const std::vector<std::string> kWorkedWith = {
        "push button | ", "check box | ", "radio button | ", "combo box | ", "list | ",
        "scroll bar | ",  "text | ",      "page tab | ",     "table | ",     "spin button | "};
    std::vector<std::string> nameless;
    std::istringstream in(tree);
    for (std::string line; std::getline(in, line);) {
        line.erase(0, line.find_first_not_of(' '));
        for (const std::string& beginning : kWorkedWith) {
            const std::string rest =
                line.starts_with(beginning) ? line.substr(beginning.size()) : "-";
            if (rest.empty() || rest.starts_with("|") || rest.starts_with(" |")) {
                nameless.push_back(line);
            }
        }
    }
    return nameless;
}

class ScreenReaderTest : public ProgramFixture {
protected:
    ScreenReader reader{desktop};
};

TEST_F(ScreenReaderTest, FaceIsAFrameThatReadsItsTimesAndTheNextOfThem) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    const std::string tree = reader.WaitFor("push button | Saturday");
    EXPECT_THAT(tree, testing::StartsWith("frame | Horavex\n"));
    EXPECT_THAT(tree, HasSubstr("label | 21 November 2026\n"));
    EXPECT_THAT(tree, HasSubstr("label | Next Athan: Asr at 3:15:22 PM\n"));
    EXPECT_THAT(tree, HasSubstr("    list | Prayer Times\n"
                                "      list item | Fajr 05:17 AM\n"
                                "      list item | Shurooq 06:35 AM\n"
                                "      list item | Zuhr 12:06 PM\n"
                                "      list item | Asr 03:15 PM | selected\n"
                                "      list item | Maghrib 05:37 PM\n"
                                "      list item | Isha 06:55 PM\n"));
    EXPECT_THAT(tree, HasSubstr("image | 223° | Qibla\n"));
    EXPECT_THAT(Nameless(tree), testing::IsEmpty());
}

TEST_F(ScreenReaderTest, NextPrayerIsToldWhenItChanges) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    reader.WaitFor("Asr 03:15 PM | selected");
    const HeardChanges changes(desktop);
    clock.Set("2026-11-21 15:16:30");
    changes.WaitFor("list item | Maghrib 05:37 PM | selected");
    EXPECT_THAT(reader.Tree(), Not(HasSubstr("Asr 03:15 PM | selected")));
}

TEST_F(ScreenReaderTest, WindowIsReadWithANameForAllThatIsWorkedWith) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    reader.WaitFor("push button | Saturday");
    const auto windows = desktop.WindowsOf(program);
    desktop.Click(face, 143, 120);
    desktop.WaitForMenu(program, windows);
    desktop.PressKey("r");
    const std::string tree = reader.WaitFor("push button | Cancel");
    EXPECT_THAT(tree, HasSubstr("dialog | Athan and Reminders\n"));
    EXPECT_THAT(tree, HasSubstr("combo box | Sound, Fajr: Each prayer: As in \"Athan Settings\""
                                " | As in \"Athan Settings\"\n"));
    EXPECT_THAT(tree, HasSubstr("scroll bar | Volume, Asr | 100%\n"));
    EXPECT_THAT(tree, HasSubstr("check box | Athan, Fajr | focused | checked\n"));
    EXPECT_THAT(Nameless(tree), testing::IsEmpty());
}

}  // namespace
}  // namespace horavex
