#include "terminal/forms/controls_sheet.h"

#include <gmock/gmock.h>

#include <clocale>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "support/data_folder.h"
#include "terminal/desk_screen.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kLayout = R"(<ui><widget class="QWidget" name="sample">
 <layout class="QVBoxLayout" name="page">
  <item><layout class="QHBoxLayout" name="line">
   <item><widget class="QLabel" name="lblName"><property name="buddy"><cstring>txtName</cstring></property></widget></item>
   <item><widget class="QLineEdit" name="txtName"/></item>
  </layout></item>
  <item><widget class="QGroupBox" name="fraMore"><layout class="QVBoxLayout" name="inside">
   <item><widget class="QCheckBox" name="chkAlarm"/></item>
   <item><widget class="QScrollBar" name="hsAngle">
    <property name="namedBy"><string notr="true">fraMore lblName</string></property></widget></item>
   <item><widget class="QLabel" name="lblShown"/></item>
   <item><widget class="QComboBox" name="cboMethod"/></item>
  </layout></widget></item>
  <item><widget class="QListWidget" name="lstCities"/></item>
  <item><layout class="QHBoxLayout" name="buttons">
   <item><spacer name="s"><property name="orientation"><enum>Qt::Horizontal</enum></property></spacer></item>
   <item><widget class="QPushButton" name="cmdOK"><property name="default"><bool>true</bool></property></widget></item>
   <item><widget class="QPushButton" name="cmdCancel"><property name="cancels"><bool>true</bool></property></widget></item>
  </layout></item>
 </layout></widget></ui>)";

class SampleForm : public Form {
public:
    SampleForm() : Form("sample", {.caption = "Sample", .width = 6000, .height = 4000}) {}

    Label lblName{*this, "lblName", {.caption = "&Name"}};
    TextBox txtName{*this, "txtName"};
    Frame fraMore{*this, "fraMore", {.caption = "More"}};
    CheckBox chkAlarm{fraMore, "chkAlarm", {.caption = "&Alarm", .toolTipText = "Rings daily"}};
    ScrollBar hsAngle{fraMore, "hsAngle", {.value = 5, .max = 10, .largeStep = 4}};
    Label lblShown{fraMore, "lblShown", {.caption = "degrees"}};
    ComboBox cboMethod{
        fraMore, "cboMethod", {.items = {"Egypt", "Karachi", "Makkah"}, .typed = false}};
    ListBox lstCities{*this, "lstCities", {.items = {"Cairo", "Dhaka", "Dubai", "Lahore"}}};
    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
    CommandButton cmdCancel{*this, "cmdCancel", {.caption = "&Cancel"}};
};

struct ControlsSheetTest : testing::Test {
    ControlsSheetTest() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

    static std::shared_ptr<FormSheet> MakeSample(Form& form, FormSheet::Host& host) {
        return std::make_shared<ControlsSheet>(form, ReadLayout(kLayout), host);
    }

    /// Tab, until the control has the focus.
    void GoTo(const Control& control) {
        for (int step = 0; form.FocusHolder() != &control; ++step) {
            ASSERT_LT(step, 20) << control.Name();
            screen.Press(KeyCode::kTab);
        }
    }

    TestPlatform platform;
    SampleForm form;
    DeskScreen screen{24, 80, MakeSample};
};

TEST_F(ControlsSheetTest, ShowsEveryKindOfControl) {
    form.txtName.SetText("Mosque");
    form.cboMethod.SetListIndex(1);
    form.Show();
    const std::string text = screen.Text();
    for (const char* shown : {"┌─ Sample ─", "Name", "Mosque", "┌─ More ─", "[ ] Alarm", "█",
                              "degrees", "Karachi", "▾", "Dhaka", "[ OK ]  [ Cancel ]"}) {
        EXPECT_THAT(text, HasSubstr(shown));
    }
    EXPECT_TRUE(screen.LookOf("Alarm").key);
    EXPECT_FALSE(screen.LookOf("larm").key);
}

TEST_F(ControlsSheetTest, HiddenControlsTakeNoRoom) {
    form.fraMore.SetVisible(false);
    form.Show();
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Alarm")));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("More")));
}

TEST_F(ControlsSheetTest, KeysGoFromControlToControlInTheirOrder) {
    form.Show();
    screen.Press(KeyCode::kTab);
    EXPECT_TRUE(form.chkAlarm.HasFocus());
    screen.Press(KeyCode::kTab);
    EXPECT_TRUE(form.hsAngle.HasFocus());
    screen.Press(KeyCode::kBackTab);
    EXPECT_TRUE(form.chkAlarm.HasFocus());
    screen.Press(KeyCode::kBackTab);
    screen.Press(KeyCode::kBackTab);
    EXPECT_TRUE(form.cmdCancel.HasFocus()) << "from the first to the last";
}

TEST_F(ControlsSheetTest, ControlsThatTakeNoUserArePassedOver) {
    form.chkAlarm.SetEnabled(false);
    form.Show();
    screen.Press(KeyCode::kTab);
    EXPECT_TRUE(form.hsAngle.HasFocus());
    EXPECT_EQ(screen.LookOf("[ ] Alarm").tone, Tone::kFaint);
}

TEST_F(ControlsSheetTest, NumbersAreShownInTheDigitsOfTheLanguageAndTypedInEither) {
    DataFolder(platform.files).Write("lang/Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
    currentLanguage = "Bengali";
    ShowOwnDigits(true);
    form.lblShown.SetCaption("18.5");
    form.Show();
    screen.Type("1২");
    EXPECT_EQ(form.txtName.Text(), "12");
    EXPECT_THAT(screen.Text(), HasSubstr("১২"));
    EXPECT_THAT(screen.Text(), HasSubstr("১৮.৫"));
}

TEST_F(ControlsSheetTest, PathsKeepTheirDigitsWhereALineBegins) {
    DataFolder(platform.files).Write("lang/Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
    currentLanguage = "Bengali";
    ShowOwnDigits(true);
    const std::string path = "/home/" + std::string(80, 'x') + " 2026";
    form.lblShown.SetCaption(path);
    form.txtName.SetText(path);
    form.chkAlarm.SetCaption("12 " + path);
    form.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("[ ] ১২"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("২০")));
    form.txtName.UserFocus();
    screen.Press(KeyCode::kEnd);
    EXPECT_THAT(screen.Text(), HasSubstr("x 2026"));
}

TEST_F(ControlsSheetTest, TextIsTypedAtTheCursor) {
    int changes = 0;
    int releases = 0;
    form.txtName.onChange = [&] { ++changes; };
    form.txtName.onKeyUp = [&] { ++releases; };
    form.Show();
    screen.Type("Hra");
    screen.Press(KeyCode::kLeft);
    screen.Press(KeyCode::kLeft);
    screen.Type("o");
    screen.Press(KeyCode::kEnd);
    screen.Press(KeyCode::kBackspace);
    EXPECT_EQ(form.txtName.Text(), "Hor");
    EXPECT_EQ(changes, 5);
    EXPECT_EQ(releases, 8);
    EXPECT_TRUE(screen.Shown().Cursor().has_value());
}

TEST_F(ControlsSheetTest, BlankTicksABoxAndItsHintIsTold) {
    form.Show();
    screen.Press(KeyCode::kTab);
    EXPECT_THAT(screen.Rows().back(), HasSubstr("Rings daily"));
    screen.Type(" ");
    EXPECT_EQ(form.chkAlarm.Value(), 1);
    EXPECT_THAT(screen.Text(), HasSubstr("[x] Alarm"));
}

TEST_F(ControlsSheetTest, LabelsOfAControlAreToldWhileItHasTheFocus) {
    form.Show();
    GoTo(form.hsAngle);
    EXPECT_THAT(screen.Rows().back(), HasSubstr("More, Name"));
}

TEST_F(ControlsSheetTest, ArrowKeysMoveABarWithinItsLimits) {
    form.Show();
    GoTo(form.hsAngle);
    screen.Press(KeyCode::kRight);
    EXPECT_EQ(form.hsAngle.Value(), 6);
    screen.Press(KeyCode::kPageDown);
    screen.Press(KeyCode::kPageDown);
    EXPECT_EQ(form.hsAngle.Value(), 10);
    screen.Press(KeyCode::kHome);
    EXPECT_EQ(form.hsAngle.Value(), 0);
}

TEST_F(ControlsSheetTest, LettersLookForARowOfAList) {
    form.Show();
    GoTo(form.lstCities);
    screen.Type("du");
    EXPECT_EQ(form.lstCities.Text(), "Dubai");
    platform.clock.Advance(2.0);
    screen.Type("l");
    EXPECT_EQ(form.lstCities.Text(), "Lahore");
    screen.Press(KeyCode::kUp);
    EXPECT_EQ(form.lstCities.Text(), "Dubai");
}

TEST_F(ControlsSheetTest, LetterOverAndOverGoesThroughTheRowsThatBeginWithIt) {
    form.Show();
    GoTo(form.lstCities);
    for (const char* expected : {"Dhaka", "Dubai", "Dhaka"}) {
        screen.Type("d");
        EXPECT_EQ(form.lstCities.Text(), expected);
    }
}

TEST_F(ControlsSheetTest, LetterThatNoRowBeginsWithLeavesTheListAsItIs) {
    form.Show();
    GoTo(form.lstCities);
    screen.Type("x");
    EXPECT_EQ(form.lstCities.ListIndex(), -1);
    platform.clock.Advance(2.0);
    screen.Type("o");
    EXPECT_TRUE(form.lstCities.HasFocus()) << "no key of the button either";
    form.lstCities.SetListIndex(2);
    screen.Type("xyz");
    EXPECT_EQ(form.lstCities.ListIndex(), 2);
}

TEST_F(ControlsSheetTest, LettersAndTheEndsOfAListThatDropsDownChooseWithoutOpeningIt) {
    form.Show();
    GoTo(form.cboMethod);
    screen.Type("m");
    EXPECT_EQ(form.cboMethod.Text(), "Makkah");
    screen.Press(KeyCode::kHome);
    EXPECT_EQ(form.cboMethod.Text(), "Egypt");
    screen.Press(KeyCode::kEnd);
    EXPECT_EQ(form.cboMethod.Text(), "Makkah");
    platform.clock.Advance(2.0);
    screen.Type("a");
    EXPECT_EQ(form.chkAlarm.Value(), 0) << "letters are the list's";
    EXPECT_EQ(form.cboMethod.Text(), "Makkah");
}

TEST_F(ControlsSheetTest, ListThatDropsDownIsChosenFrom) {
    form.Show();
    GoTo(form.cboMethod);
    screen.LayOut({KeyPress{KeyCode::kDown}, KeyPress{KeyCode::kDown}, KeyPress{KeyCode::kEnter}});
    screen.Type(" ");
    EXPECT_EQ(form.cboMethod.Text(), "Makkah");
    screen.LayOut({KeyPress{KeyCode::kUp}, KeyPress{KeyCode::kEscape}});
    screen.Type(" ");
    EXPECT_EQ(form.cboMethod.Text(), "Makkah") << "given up";
}

TEST_F(ControlsSheetTest, RefusedRowIsNotChosen) {
    form.Show();
    form.cboMethod.SetItemRefusal(1, "too far north");
    GoTo(form.cboMethod);
    screen.Press(KeyCode::kRight);
    screen.Press(KeyCode::kRight);
    EXPECT_EQ(form.cboMethod.Text(), "Makkah");
}

TEST_F(ControlsSheetTest, KeysDownPassAListThatDropsDown) {
    form.Show();
    GoTo(form.cboMethod);
    screen.Press(KeyCode::kDown);
    EXPECT_EQ(form.cboMethod.ListIndex(), -1);
    EXPECT_TRUE(form.lstCities.HasFocus());
}

TEST_F(ControlsSheetTest, AltAndALetterReachAControl) {
    form.Show();
    screen.PressAlt('a');
    EXPECT_EQ(form.chkAlarm.Value(), 1);
    screen.PressAlt('N');
    EXPECT_TRUE(form.txtName.HasFocus()) << "what the label stands before";
}

TEST_F(ControlsSheetTest, LetterWithoutAltReachesNoControl) {
    int accepted = 0;
    form.cmdOK.onClick = [&] { ++accepted; };
    form.Show();
    GoTo(form.chkAlarm);
    screen.Type("o");
    EXPECT_EQ(accepted, 0);
    EXPECT_TRUE(form.chkAlarm.HasFocus());
}

TEST_F(ControlsSheetTest, NoCharacterIsTheKeyOfAControlWithoutOne) {
    form.cmdOK.SetCaption("OK");
    int accepted = 0;
    form.cmdOK.onClick = [&] { ++accepted; };
    form.Show();
    GoTo(form.hsAngle);
    screen.PressAlt(0);
    EXPECT_EQ(accepted, 0);
    EXPECT_EQ(form.chkAlarm.Value(), 0);
    EXPECT_TRUE(form.hsAngle.HasFocus());
}

TEST_F(ControlsSheetTest, EnterPressesTheDefaultButtonAndEscapeTheOther) {
    int accepted = 0;
    int cancelled = 0;
    form.cmdOK.onClick = [&] { ++accepted; };
    form.cmdCancel.onClick = [&] { ++cancelled; };
    form.Show();
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(accepted, 1);
    screen.Press(KeyCode::kEscape);
    EXPECT_EQ(cancelled, 1);
    GoTo(form.cmdCancel);
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(cancelled, 2) << "the button with the focus";
    EXPECT_EQ(accepted, 1);
}

TEST_F(ControlsSheetTest, FormMayEndInTheMiddleOfAKey) {
    form.cmdCancel.onClick = [&] { form.Unload(); };
    form.Show();
    screen.Press(KeyCode::kEscape);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Sample")));
    EXPECT_TRUE(screen.timersOf.empty());
}

TEST_F(ControlsSheetTest, ModalFormReturnsWhenItIsHidden) {
    form.cmdOK.onClick = [&] { form.Hide(); };
    screen.LayOut({KeyPress{KeyCode::kEnter}});
    form.ShowModal();
    EXPECT_FALSE(form.Visible());
}

TEST_F(ControlsSheetTest, FocusSetByTheProgramIsFollowed) {
    form.Show();
    form.lstCities.SetFocus();
    screen.Press(KeyCode::kDown);
    EXPECT_EQ(form.lstCities.ListIndex(), 0);
}

TEST_F(ControlsSheetTest, LowScreenIsScrolledWithTheFocus) {
    screen.SetSize(16, 80);
    for (int city = 0; city < 30; ++city) {
        form.lstCities.AddItem("Town");
    }
    form.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("Name"));
    GoTo(form.cmdOK);
    EXPECT_THAT(screen.Text(), HasSubstr("[ OK ]"));
    EXPECT_EQ(screen.LookOf("[ OK ]").tone, Tone::kFocus);
}

TEST_F(ControlsSheetTest, RightToLeftCaptionsBeginAtTheRight) {
    form.lblName.SetCaption("الاسم");
    form.fraMore.SetCaption("المزيد");
    form.chkAlarm.SetCaption("المنبه");
    form.lblShown.SetCaption("درجات");
    form.cmdOK.SetCaption("موافق");
    form.Show();
    for (const std::string& row : screen.Rows()) {
        if (row.find("المنبه") != std::string::npos) {
            EXPECT_THAT(row, HasSubstr("المنبه [ ]"));
            return;
        }
    }
    FAIL() << screen.Text();
}

TEST_F(ControlsSheetTest, TooSmallATerminalSaysWhatItNeeds) {
    form.Show();
    screen.SetSize(10, 30);
    EXPECT_THAT(screen.Rows(), Contains(HasSubstr("Horavex: 40 × 16")));
    screen.Type("unseen");
    EXPECT_EQ(form.txtName.Text(), "");
    screen.SetSize(24, 80);
    EXPECT_THAT(screen.Text(), HasSubstr("Sample"));
}

}  // namespace
}  // namespace horavex
