#include "terminal/face/face_sheet.h"

#include <gmock/gmock.h>

#include <clocale>

#include "athan/azan_window.h"
#include "engine/day_view.h"
#include "support/program_copy.h"
#include "support/program_test.h"
#include "terminal/desk_screen.h"
#include "terminal/face/athan_sheet.h"
#include "terminal/face/big_digits.h"
#include "terminal/sheets/message_sheet.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The whole program on ports in memory, its face on a screen in memory.
struct FaceSheetTest : testing::Test {
    FaceSheetTest() {
        std::setlocale(LC_CTYPE, "C.UTF-8");
        CopyBuiltProgramFolder(platform.files);
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", "18");
        BindWindows();
        face.LoadMovie(0, "");
        athanFace.LoadMovie(0, "");
        face.onFSCommand = [this](const std::string& command, const std::string&) {
            commands.push_back(command);
        };
        platform.face.onShowDay = [this](const DayView& day) { face.ShowDay(day); };
    }

    void Start() {
        frmMain->Load();
        for (const auto& [name, value] : platform.face.variables) {
            face.SetVariable(name, value);
        }
        screen.desk.Invalidate();
    }

    std::shared_ptr<FormSheet> Special(Form& form, FormSheet::Host& host) {
        if (&form == &*frmMain) {
            return std::make_shared<FaceSheet>(form, host, face);
        }
        return &form == &*frmAzan ? std::make_shared<AthanSheet>(form, host, athanFace) : nullptr;
    }

    static void Athan() {
        frmAzan->Load();
        ShowMe();
    }

    TestPlatform platform;
    TerminalFace face;
    TerminalFace athanFace;
    DeskScreen screen{24, 80,
                      [this](Form& form, FormSheet::Host& host) { return Special(form, host); }};
    std::vector<std::string> commands;
};

TEST_F(FaceSheetTest, ShowsTheDayWithTheNextPrayerMarked) {
    Start();
    const std::string text = screen.Text();
    for (const char* shown : {"Athan", "Settings", "Tools", "Help", "Saturday, 21 November 2026",
                              "Mecca, Mecca - Saudi Arabia", "Next Athan: ", "┌─ Prayer Times ─",
                              "▸ Zuhr", "N", "Qibla -137"}) {
        EXPECT_THAT(text, HasSubstr(shown));
    }
    EXPECT_EQ(screen.LookOf("Zuhr").tone, Tone::kAccent);
    EXPECT_EQ(screen.LookOf("Maghrib").tone, Tone::kPlain);
}

TEST_F(FaceSheetTest, LowScreenHasNoLargeDigits) {
    Start();
    EXPECT_THAT(screen.Text(), HasSubstr("██████"));
    screen.SetSize(16, 60);
    EXPECT_THAT(screen.Text(), Not(HasSubstr("██████")));
    EXPECT_THAT(screen.Text(), HasSubstr("Remaining: 00:06:"));
    EXPECT_THAT(screen.Text(), HasSubstr("Isha"));
}

TEST_F(FaceSheetTest, DatesThatHaveNoRoomBesideEachOtherStandInTwoRows) {
    Start();
    EXPECT_THAT(screen.Rows().at(2), HasSubstr("November 2026  ·  10 "));
    screen.SetSize(16, 40);
    EXPECT_THAT(screen.Rows().at(1), HasSubstr("Saturday, 21 November 2026"));
    EXPECT_THAT(screen.Rows().at(2), HasSubstr(" 1448"));
    EXPECT_THAT(screen.Text(), HasSubstr("Isha"));
}

TEST_F(FaceSheetTest, TitlesOfMenusAndTheClockLeaveEachOtherRoom) {
    Start();
    face.SetVariable("_root.settings", "Einstellungen");
    face.SetVariable("_root.tools", "Werkzeuge");
    screen.SetSize(16, 45);
    EXPECT_THAT(screen.Rows().at(0), HasSubstr("Athan Einstellungen Werkzeuge Help 12:00 PM"));
    face.SetVariable("_root.settings", "Alle Einstellungen");
    screen.SetSize(16, 45);
    EXPECT_THAT(screen.Rows().at(0), HasSubstr("Help"));
    EXPECT_THAT(screen.Rows().at(0), Not(HasSubstr("12:00"))) << "it stands on the machine, too";
}

TEST_F(FaceSheetTest, KeysOpenMenus) {
    Start();
    screen.Press(KeyCode::kF10);
    screen.PressAlt('t');
    screen.Type("h");
    EXPECT_THAT(commands, testing::ElementsAre("IDC_FS_azan", "IDC_FS_tools", "IDC_FS_help"));
}

TEST_F(FaceSheetTest, MenusOpenBelowTheirTitles) {
    Start();
    const auto sheet = std::make_shared<FaceSheet>(*frmMain, screen.host, face);
    EXPECT_EQ(sheet->PlaceOf("mnuAthan"), (CellPlace{1, 0}));
    EXPECT_EQ(sheet->PlaceOf("mnuSettings"), (CellPlace{1, 8}));
}

TEST_F(FaceSheetTest, AthanWindowTakesItsStopAndNoOtherKey) {
    Start();
    Athan();
    athanFace.SetVariable("_root.character_textField", "It is time for Asr");
    athanFace.onFSCommand = [this](const std::string& command, const std::string&) {
        commands.push_back(command);
    };
    athanFace.SetVariable("_root.place_textField", "Cairo, 3:15 PM");
    EXPECT_THAT(screen.Text(), HasSubstr("It is time for Asr"));
    EXPECT_THAT(screen.Text(), HasSubstr("Cairo, 3:15 PM"));
    EXPECT_THAT(screen.Text(), HasSubstr("[ ■ Stop ]"));
    screen.Type("h");
    EXPECT_THAT(commands, testing::ElementsAre("IDC_FS_help")) << "for what lies below";
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(commands.back(), "IDC_FS_Stop");
    commands.clear();
    screen.Press(KeyCode::kEscape);
    EXPECT_THAT(commands, testing::ElementsAre("IDC_FS_Stop"));
}

TEST_F(FaceSheetTest, AthanWindowIsThereAsLongAsTheAthanIs) {
    Start();
    frmAzan->Load();
    frmAzan->Show();
    EXPECT_THAT(screen.Text(), Not(HasSubstr("■"))) << "before any";
    ShowMe();
    frmAzan->Timer1.Tick();
    EXPECT_THAT(screen.Text(), HasSubstr("■"));
    StopAthan();
    EXPECT_THAT(screen.Text(), Not(HasSubstr("■")));
    ShowMe();
    EXPECT_THAT(screen.Text(), HasSubstr("■"));
}

TEST_F(FaceSheetTest, AthanWindowStaysInFrontOfWhatOpens) {
    Start();
    Athan();
    const auto box =
        std::make_shared<MessageSheet>("", std::string(3000, 'x'), std::vector<std::string>{"&OK"});
    screen.desk.BringUp(box);
    EXPECT_THAT(screen.Text(), HasSubstr("[ ■ Stop ]"));
    EXPECT_EQ(screen.desk.Front(), box.get());
    screen.Press(KeyCode::kF6);
    EXPECT_THAT(screen.Text(), HasSubstr("[ ■ Stop ]"));
    screen.Type(" ");
    EXPECT_TRUE(box->HasEnded()) << "other keys go to what has opened";
}

TEST(BigDigits, CountdownInHoursMinutesAndSeconds) {
    EXPECT_EQ(CountdownDigits(0), "00:00:00");
    EXPECT_EQ(CountdownDigits(4 * 3600 + 31 * 60 + 9), "04:31:09");
    EXPECT_EQ(WidthOfBigDigits("00:00:00"), 6 * 6 + 2 * 2 + 7);
}

}  // namespace
}  // namespace horavex
