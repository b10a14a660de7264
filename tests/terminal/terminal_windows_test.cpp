#include "terminal/ports/terminal_windows.h"

#include <gmock/gmock.h>

#include "terminal/desk_screen.h"

namespace horavex {
namespace {

struct TerminalWindowsTest : testing::Test {
    TestPlatform platform;
    DeskScreen screen{24, 80};
    TerminalWindows windows{screen.sheets, screen.desk};
};

TEST_F(TerminalWindowsTest, PlacesOfTheScreenHaveSizesInTwips) {
    EXPECT_EQ(windows.Screen().width, 9600.0);
    EXPECT_EQ(windows.WorkArea().bottom, 5760.0);
}

TEST_F(TerminalWindowsTest, WindowThatIsToBePrintedSaysWhatToDo) {
    windows.Print("frmSky");
    ASSERT_EQ(platform.dialogs.messages.size(), 1u);
    EXPECT_THAT(platform.dialogs.messages.front().text,
                testing::HasSubstr("Nothing is printed from a terminal"));
}

TEST_F(TerminalWindowsTest, MenuOfAWindowThatIsNotThereDoesNotOpen) {
    windows.PopUpMenu("frmMain", "mnuTools", 0, 0);
    EXPECT_TRUE(screen.desk.IsEmpty());
}

}  // namespace
}  // namespace horavex
