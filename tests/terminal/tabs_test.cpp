// Windows with pages, one of which is on view.

#include <gmock/gmock.h>

#include <clocale>

#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/range.h"
#include "terminal/desk_screen.h"
#include "terminal/forms/controls_sheet.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Page(const std::string& number, const std::string& frame, const std::string& parts) {
    return "<widget class=\"QWidget\" name=\"qt_" + number +
           "\"><property name=\"titledBy\"><string notr=\"true\">" + frame +
           "</string></property><layout class=\"QVBoxLayout\" name=\"page_" + number + "\">" +
           parts + "</layout></widget>";
}

std::string Part(const std::string& shape, const std::string& name) {
    return "<item><widget class=\"" + shape + "\" name=\"" + name + "\"/></item>";
}

const std::string kLayout =
    R"(<ui><widget class="QWidget" name="pages"><layout class="QVBoxLayout" name="all"><item>)"
    R"(<widget class="QTabWidget" name="qt_pages">)" +
    Page("place", "fraPlace", Part("QCheckBox", "chkPlace")) +
    Page("method", "fraMethod", Part("QCheckBox", "chkMethod") + Part("QScrollBar", "hsAngle")) +
    Page("sound", "fraSound", Part("QCheckBox", "chkSound")) +
    "</widget></item></layout></widget></ui>";

class PagesForm : public Form {
public:
    PagesForm() : Form("pages", {.caption = "Pages"}) {}

    Frame fraPlace{*this, "fraPlace", {.caption = "Place"}};
    CheckBox chkPlace{*this, "chkPlace", {.caption = "A&utomatic"}};
    Frame fraMethod{*this, "fraMethod", {.caption = "Method"}};
    CheckBox chkMethod{*this, "chkMethod", {.caption = "Us&ual"}};
    ScrollBar hsAngle{*this, "hsAngle", {.value = 5, .max = 10}};
    Frame fraSound{*this, "fraSound", {.caption = "Sound"}};
    CheckBox chkSound{*this, "chkSound", {.caption = "&Loud"}};
};

struct TabsTest : testing::Test {
    TabsTest() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

    static std::shared_ptr<FormSheet> Make(Form& form, FormSheet::Host& host) {
        return std::make_shared<ControlsSheet>(form, ReadLayout(kLayout), host);
    }

    void SpeakArabic() {
        form.fraPlace.SetCaption("المكان");
        form.fraMethod.SetCaption("الطريقة");
        form.fraSound.SetCaption("الصوت");
        form.chkPlace.SetCaption("تلقائي");
        form.chkMethod.SetCaption("معتاد");
        form.chkSound.SetCaption("عال");
    }

    TestPlatform platform;
    PagesForm form;
    DeskScreen screen{24, 80, Make};
};

TEST_F(TabsTest, ArrowKeysTurnThePagesAndStayAtTheirEnds) {
    form.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("[ ] Automatic"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Usual")));
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("[ ] Automatic"));
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("[ ] Usual"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Automatic")));
    screen.Press(KeyCode::kRight);
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("[ ] Loud"));
}

TEST_F(TabsTest, FromTheRightTheLeftKeyGoesOnAndRaisesABar) {
    SpeakArabic();
    form.Show();
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("معتاد [ ]"));
    form.hsAngle.SetFocus();
    screen.Press(KeyCode::kLeft);
    EXPECT_EQ(form.hsAngle.Value(), 6);
    screen.Press(KeyCode::kRight);
    screen.Press(KeyCode::kRight);
    EXPECT_EQ(form.hsAngle.Value(), 4);
}

TEST_F(TabsTest, PageKeysTurnThePagesOfAWindowThatHasRoom) {
    form.Show();
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("Usual"));
    screen.Press(KeyCode::kPageUp);
    EXPECT_THAT(screen.Text(), HasSubstr("Automatic"));
}

TEST_F(TabsTest, TitlesThatHaveNoRoomBesideEachOtherStandInMoreRows) {
    form.fraPlace.SetCaption("The place that was chosen");
    form.fraMethod.SetCaption("The method of its authority");
    screen.SetSize(16, 40);
    form.Show();
    const std::string text = screen.Text();
    EXPECT_THAT(text, HasSubstr("The place that was chosen"));
    EXPECT_THAT(text, HasSubstr("The method of its authority"));
    EXPECT_LT(text.find("Sound"), text.find("Automatic"));
}

TEST_F(TabsTest, AltReachesWhatIsOnViewBeforeWhatLiesOnOtherPages) {
    form.Show();
    screen.Press(KeyCode::kRight);
    screen.PressAlt('u');
    EXPECT_EQ(form.chkMethod.Value(), 1);
    EXPECT_EQ(form.chkPlace.Value(), 0);
    screen.PressAlt('l');
    EXPECT_EQ(form.chkSound.Value(), 1);
    EXPECT_THAT(screen.Text(), HasSubstr("[x] Loud"));
}

}  // namespace
}  // namespace horavex
