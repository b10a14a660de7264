// Tables, texts and windows that are larger than their room.

#include <gmock/gmock.h>

#include <clocale>

#include "forms/command_button.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "terminal/desk_screen.h"
#include "terminal/forms/controls_sheet.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Each part below the one before it.
std::string Column(const std::string& parts) {
    return R"(<ui><widget class="QWidget" name="sample"><layout class="QVBoxLayout" name="page">)" +
           parts + "</layout></widget></ui>";
}

std::string Part(const std::string& shape, const std::string& name,
                 const std::string& properties = {}) {
    return "<item><widget class=\"" + shape + "\" name=\"" + name + "\">" + properties +
           "</widget></item>";
}

struct WideParts : testing::Test {
    WideParts() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

    std::shared_ptr<FormSheet> Make(Form& form, FormSheet::Host& host) const {
        return std::make_shared<ControlsSheet>(form, ReadLayout(layout), host);
    }

    TestPlatform platform;
    std::string layout;
    DeskScreen screen{24, 50,
                      [this](Form& form, FormSheet::Host& host) { return Make(form, host); }};
};

class TableForm : public Form {
public:
    TableForm() : Form("table") {}
    Grid grdTable{*this, "grdTable"};
};

struct WideTable : WideParts {
    WideTable() { layout = Column(Part("QTableWidget", "grdTable")); }
    TableForm table;
};

TEST_F(WideTable, IsMovedThroughByColumns) {
    table.grdTable.heads = {"Evening", "Sunset at the place", "Moonset at the place", "Yallop"};
    table.grdTable.rows = {{{"8 December", "05:39 PM", "05:02 PM", "before"}, false, true}};
    table.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("Sunset at the place"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Yallop")));
    screen.Press(KeyCode::kRight);
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("Evening"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Sunset")));
    EXPECT_THAT(screen.Text(), HasSubstr("Yallop"));
    screen.Press(KeyCode::kLeft);
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("Sunset at the place"));
}

TEST_F(WideTable, FiguresStandAtTheEndOfTheirColumn) {
    table.grdTable.heads = {"Evening", "Sunset at the place"};
    table.grdTable.rows = {{{"8 December", "05:39 PM"}}};
    table.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("8 December  05:39 PM"));
    table.grdTable.figures = {1};
    table.grdTable.Refresh();
    EXPECT_THAT(screen.Text(), HasSubstr("8 December             05:39 PM"));
}

TEST_F(WideTable, FirstColumnYieldsToOneThatHasNoRoomBesideIt) {
    table.grdTable.heads = {"The month begins by the rule of", "First day", "Age"};
    table.grdTable.rows = {{{"Yallop, seen by the naked eye", "Friday, 11 December", "38 h"}}};
    table.Show();
    EXPECT_THAT(screen.Text(), HasSubstr("Friday, 11 December"));
    EXPECT_THAT(screen.Text(), HasSubstr("Yallop, seen by the n…  Friday"));
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("Yallop, seen by the naked eye")) << "until it is wanted";
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("Friday, 11 December"));
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("38 h"));
}

TEST_F(WideTable, MarkOfItsRowsStandsBesideThem) {
    table.grdTable.heads = {"Day", "Fajr"};
    for (int day = 0; day < 40; ++day) {
        table.grdTable.rows.push_back({{"November", "at 05:1" + std::to_string(day % 10) + " AM"}});
    }
    table.Show();
    for (const std::string& row : screen.Rows()) {
        if (row.find("November") != std::string::npos) {
            EXPECT_THAT(row, HasSubstr(" AM"));
        }
    }
    EXPECT_THAT(screen.Text(), HasSubstr("█"));
}

TEST_F(WideTable, PageKeysMoveThroughTheRowsOfATableWithoutPages) {
    table.grdTable.heads = {"Day", "Fajr"};
    for (int day = 0; day < 60; ++day) {
        table.grdTable.rows.push_back({{"day " + std::to_string(day), "05:10"}});
    }
    table.Show();
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("day 30 "));
    screen.Press(KeyCode::kPageDown);
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("day 59 "));
}

class TextsForm : public Form {
public:
    TextsForm() : Form("texts") {}
    TextBox txtMonths{*this, "txtMonths"};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "Close"}};
};

struct LongTexts : WideParts {
    void Show(const std::string& properties, const std::string& text) {
        layout =
            Column(Part("QTextEdit", "txtMonths", properties) + Part("QPushButton", "cmdClose"));
        form.txtMonths.SetText(text);
        form.Show();
    }

    TextsForm form;
};

constexpr const char* kNoWrap =
    R"(<property name="lineWrapMode"><enum>QTextEdit::NoWrap</enum></property>)";

TEST_F(LongTexts, LinesThatAreNotWrappedAreMovedThroughSideways) {
    Show(kNoWrap, "20 December 2025, 7 hours and 44 minutes, in the evening\nShort");
    EXPECT_THAT(screen.Rows().at(11), HasSubstr("Short")) << screen.Text();
    EXPECT_THAT(screen.Text(), Not(HasSubstr("evening")));
    screen.Press(KeyCode::kRight);
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("…025, 7 hours and 44 minutes, in the evening"));
    EXPECT_THAT(screen.Text(), Not(HasSubstr("Short")));
    screen.Press(KeyCode::kLeft);
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("Short"));
}

TEST_F(LongTexts, LinesThatAreNotWrappedAreAllOnView) {
    std::string months;
    for (int month = 1; month <= 12; ++month) {
        months += "month " + std::to_string(month) + "\n";
    }
    screen.SetSize(20, 50);
    Show(kNoWrap, months);
    EXPECT_THAT(screen.Text(), HasSubstr("month 1 "));
    EXPECT_THAT(screen.Text(), HasSubstr("month 12 "));
}

TEST_F(LongTexts, TextTakesNoMoreRowsThanItHas) {
    Show({}, "one\ntwo\nthree\nfour\nfive\n");
    EXPECT_THAT(screen.Text(), HasSubstr("─┐"));
    EXPECT_EQ(screen.Rows().at(0), "") << "the window is no higher than that";
    EXPECT_THAT(screen.Text(), HasSubstr("five"));
}

TEST_F(LongTexts, KeyDownLeavesATextAtItsEnd) {
    std::string text;
    for (int line = 0; line < 30; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    Show({}, text);
    for (int key = 0; key < 40; ++key) {
        screen.Press(KeyCode::kDown);
    }
    EXPECT_TRUE(form.cmdClose.HasFocus());
    EXPECT_THAT(screen.Text(), HasSubstr("line 29"));
}

class HighForm : public Form {
public:
    HighForm() : Form("high") {}
    CommandButton cmdFirst{*this, "cmdFirst", {.caption = "First"}};
    Label lblLong{*this, "lblLong"};
    CommandButton cmdLast{*this, "cmdLast", {.caption = "Last"}};
};

struct HighWindow : WideParts {
    HighWindow() {
        layout = Column(Part("QPushButton", "cmdFirst") + Part("QLabel", "lblLong") +
                        Part("QPushButton", "cmdLast"));
        std::string text;
        for (int line = 0; line < 60; ++line) {
            text += "line " + std::to_string(line) + "\n";
        }
        form.lblLong.SetCaption(text);
        form.Show();
    }

    HighForm form;
};

TEST_F(HighWindow, PageKeysMoveThroughIt) {
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("line 30 "));
    EXPECT_TRUE(screen.Text().find("First") == std::string::npos);
    screen.Press(KeyCode::kPageDown);
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("[ Last ]"));
    EXPECT_TRUE(form.cmdLast.HasFocus()) << "the focus goes along";
    screen.Press(KeyCode::kPageUp);
    EXPECT_THAT(screen.Text(), HasSubstr("line 30 "));
    screen.Press(KeyCode::kTab);
    EXPECT_THAT(screen.Text(), HasSubstr("[ First ]")) << "the window follows the focus";
}

TEST_F(HighWindow, ArrowKeysMoveThroughWhatHasNoControls) {
    form.cmdFirst.SetVisible(false);
    EXPECT_THAT(screen.Text(), HasSubstr("[ Last ]"));
    for (int key = 0; key < 30; ++key) {
        screen.Press(KeyCode::kUp);
    }
    EXPECT_THAT(screen.Text(), HasSubstr("line 20 "));
    screen.Press(KeyCode::kDown);
    EXPECT_THAT(screen.Text(), HasSubstr("line 30 "));
}

TEST_F(HighWindow, KeyThatPressesSomethingBringsItIntoView) {
    int clicks = 0;
    form.cmdFirst.SetVisible(false);
    form.cmdLast.onClick = [&clicks] { ++clicks; };
    screen.Press(KeyCode::kPageUp);
    screen.Press(KeyCode::kPageUp);
    EXPECT_THAT(screen.Text(), Not(HasSubstr("[ Last ]")));
    screen.Type(" ");
    EXPECT_EQ(clicks, 1);
    EXPECT_THAT(screen.Text(), HasSubstr("[ Last ]"));
}

class ValueForm : public Form {
public:
    ValueForm() : Form("value") {}
    Label lblName{*this, "lblName", {.caption = "A reminder before"}};
    ScrollBar hsMinutes{*this, "hsMinutes", {.value = 5, .max = 60}};
    Label lblMinutes{*this, "lblMinutes", {.caption = "5 minutes"}};
};

TEST_F(WideParts, ValueOfABarIsNotPartedFromIt) {
    layout =
        R"(<ui><widget class="QWidget" name="value"><layout class="QHBoxLayout" name="line">)" +
        Part("QLabel", "lblName",
             R"(<property name="buddy"><cstring>hsMinutes</cstring></property>)") +
        Part("QScrollBar", "hsMinutes") + Part("QLabel", "lblMinutes") + "</layout></widget></ui>";
    ValueForm form;
    screen.SetSize(16, 40);
    form.lblName.SetCaption("A reminder long before");
    form.Show();
    for (const std::string& row : screen.Rows()) {
        if (row.find("5 minutes") != std::string::npos) {
            EXPECT_THAT(row, HasSubstr("▸  5 minutes"));
        }
    }
    EXPECT_THAT(screen.Text(), HasSubstr("5 minutes"));
}

}  // namespace
}  // namespace horavex
