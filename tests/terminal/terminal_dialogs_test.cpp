#include "terminal/ports/terminal_dialogs.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"
#include "terminal/desk_screen.h"

namespace horavex {
namespace {

using testing::HasSubstr;

struct TerminalDialogsTest : testing::Test {
    TerminalDialogsTest() {
        std::ofstream(folder / "athan.wav");
        std::filesystem::create_directory(folder / "sounds");
    }

    /// Takes away the proposed path and types another.
    void LayOutPath(const std::string& path) {
        for (int key = 0; key < 80; ++key) {
            screen.LayOut({KeyPress{KeyCode::kBackspace}});
        }
        for (const char character : path) {
            screen.LayOut({CharacterKey(static_cast<char32_t>(character))});
        }
        screen.LayOut({kEnter});
    }

    static constexpr KeyPress kEnter{KeyCode::kEnter};
    static constexpr KeyPress kEscape{KeyCode::kEscape};

    TestPlatform platform;
    TemporaryFolder folder;
    DeskScreen screen;
    int beeps = 0;
    TerminalDialogs dialogs{screen.host, [this] { ++beeps; }};
};

TEST_F(TerminalDialogsTest, FileThatIsThereIsOpened) {
    LayOutPath(folder / "athan.wav");
    EXPECT_EQ(dialogs.OpenFile({"Open", "", 1}), folder / "athan.wav");
    EXPECT_EQ(beeps, 0);
}

TEST_F(TerminalDialogsTest, WhatIsNoFileIsNotOpened) {
    LayOutPath(folder / "nothing.wav");
    LayOutPath(folder / "sounds");
    screen.LayOut({kEscape});
    EXPECT_EQ(dialogs.OpenFile({"Open", "", 1}), "");
    EXPECT_EQ(beeps, 1);
}

TEST_F(TerminalDialogsTest, FileThatIsThereIsAskedAboutBeforeItIsWrittenAnew) {
    LayOutPath(folder / "athan");
    screen.LayOut({CharacterKey('c')});
    LayOutPath(folder / "athan.wav");
    screen.LayOut({CharacterKey('r')});
    EXPECT_EQ(dialogs.SaveFile({"Save As", "", 1}, ".wav"), folder / "athan.wav");
}

TEST_F(TerminalDialogsTest, LineForAPathSaysWhatItIsForWhereNothingElseDoes) {
    std::string seen;
    screen.whileWaiting = [&] {
        seen = screen.Text();
        screen.LayOut({kEscape});
    };
    EXPECT_EQ(dialogs.SaveFile({"", "", 1}, ".txt"), "");
    EXPECT_THAT(seen, HasSubstr("Save as"));
    EXPECT_THAT(seen, HasSubstr(" ~/ "));
}

TEST_F(TerminalDialogsTest, NewFileIsNotAskedAbout) {
    LayOutPath(folder / "other");
    EXPECT_EQ(dialogs.SaveFile({"Save As", "", 1}, ".wav"), folder / "other.wav");
}

}  // namespace
}  // namespace horavex
