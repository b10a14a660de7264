// Menus, boxes, the line for a path and the help, on a screen in memory.

#include <gmock/gmock.h>

#include <clocale>
#include <filesystem>
#include <fstream>

#include "forms/menu_item.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "support/data_folder.h"
#include "support/temporary_folder.h"
#include "terminal/desk_screen.h"
#include "terminal/sheets/help_sheet.h"
#include "terminal/sheets/item_menu.h"
#include "terminal/sheets/message_sheet.h"
#include "terminal/sheets/path_sheet.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr KeyPress kDown{KeyCode::kDown};
constexpr KeyPress kRight{KeyCode::kRight};
constexpr KeyPress kEnter{KeyCode::kEnter};
constexpr KeyPress kEscape{KeyCode::kEscape};

class MenuForm : public Form {
public:
    MenuForm() : Form("menus") {}

    MenuItem mnuFile{*this, "mnuFile", {.caption = "File"}};
    MenuItem mnuOpen{mnuFile, "mnuOpen", {.caption = "&Open"}};
    MenuItem mnuHidden{mnuFile, "mnuHidden", {.caption = "Hidden", .visible = false}};
    MenuItem mnuLine{mnuFile, "mnuLine", {.caption = "-"}};
    MenuItem mnuShut{mnuFile, "mnuShut", {.caption = "Shut", .enabled = false}};
    MenuItem mnuMore{mnuFile, "mnuMore", {.caption = "More"}};
    MenuItem mnuInner{mnuMore, "mnuInner", {.caption = "Inner"}};
};

struct Sheets : testing::Test {
    Sheets() {
        std::setlocale(LC_CTYPE, "C.UTF-8");
        form.mnuOpen.onClick = [this] { clicked = "open"; };
        form.mnuShut.onClick = [this] { clicked = "shut"; };
        form.mnuInner.onClick = [this] { clicked = "inner"; };
    }

    int RunMenu(const std::vector<KeyPress>& keys) {
        screen.LayOut(keys);
        return RunItemMenu(form.mnuFile, {std::nullopt, false, true}, screen.host);
    }

    TestPlatform platform;
    MenuForm form;
    DeskScreen screen;
    std::string clicked;
};

TEST_F(Sheets, MenuClicksWhatIsChosen) {
    EXPECT_EQ(RunMenu({kEnter}), 0);
    EXPECT_EQ(clicked, "open");
    EXPECT_TRUE(screen.desk.IsEmpty());
}

TEST_F(Sheets, MenuIsTakenByItsKeys) {
    RunMenu({CharacterKey('o')});
    EXPECT_EQ(clicked, "open");
}

TEST_F(Sheets, MenuPassesLinesAndKeepsShutEntries) {
    RunMenu({kDown, kEnter, kEscape});
    EXPECT_EQ(clicked, "");
}

TEST_F(Sheets, MenuInsideAMenuOpens) {
    RunMenu({kDown, kDown, kRight, kEnter});
    EXPECT_EQ(clicked, "inner");
}

TEST_F(Sheets, MenuIsLeftSidewaysForItsNeighbour) {
    EXPECT_EQ(RunMenu({kRight}), 1);
    EXPECT_EQ(RunMenu({KeyPress{KeyCode::kLeft}}), -1);
    EXPECT_EQ(RunMenu({kEscape}), 0);
    EXPECT_EQ(clicked, "");
}

TEST_F(Sheets, MessageIsWrappedAndClosed) {
    const auto box = std::make_shared<MessageSheet>(
        "Horavex",
        "These settings ask for a smaller angle than the sun reaches in the night there.",
        std::vector<std::string>{"&OK"});
    screen.desk.BringUp(box);
    EXPECT_THAT(screen.Text(), HasSubstr("─ Horavex ─"));
    EXPECT_THAT(screen.Text(), HasSubstr("[ OK ]"));
    screen.Press(KeyCode::kDown);
    EXPECT_FALSE(box->HasEnded());
    screen.Press(KeyCode::kEnter);
    EXPECT_TRUE(box->HasEnded());
}

struct Questions : Sheets {
    /// The button that keys lead to.
    std::size_t Answer(const std::vector<KeyPress>& keys) {
        const auto box = std::make_shared<MessageSheet>("", "Replace it?",
                                                        std::vector<std::string>{"&Ja", "&Nein"});
        screen.LayOut(keys);
        RunSheet(box, screen.host);
        return box->Pressed();
    }
};

TEST_F(Questions, AnsweredByTheKeysOfItsButtons) {
    EXPECT_EQ(Answer({CharacterKey('j')}), 0u);
    EXPECT_EQ(Answer({CharacterKey('x'), CharacterKey('N')}), 1u);
}

TEST_F(Questions, TheLastButtonIsTakenWhereNobodyChoosesTheOther) {
    EXPECT_EQ(Answer({kEnter}), 1u);
    EXPECT_EQ(Answer({KeyPress{KeyCode::kTab}, kEscape}), 1u);
    EXPECT_EQ(Answer({KeyPress{KeyCode::kTab}, kEnter}), 0u);
    EXPECT_EQ(Answer({KeyPress{KeyCode::kLeft}, CharacterKey(' ')}), 0u);
}

TEST_F(Sheets, LongMessageIsMovedThrough) {
    std::string text;
    for (int line = 0; line < 60; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    screen.desk.BringUp(
        std::make_shared<MessageSheet>("", text + "the end", std::vector<std::string>{"&OK"}));
    EXPECT_THAT(screen.Text(), AllOf(HasSubstr("line 0 "), Not(HasSubstr("line 30 "))));
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), AllOf(Not(HasSubstr("line 0 ")), HasSubstr("line 30 ")));
    screen.Press(KeyCode::kPageDown);
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), HasSubstr("the end"));
    screen.Press(KeyCode::kUp);
    EXPECT_THAT(screen.Text(), Not(HasSubstr("the end")));
    screen.Press(KeyCode::kPageUp);
    EXPECT_THAT(screen.Text(), Not(HasSubstr("line 58 ")));
    EXPECT_THAT(screen.Text(), HasSubstr("line 30 "));
}

TEST_F(Sheets, ListThatDropsDownIsSearchedByWhatIsTyped) {
    const std::vector<std::string> cities = {"Cairo", "Dhaka", "Dubai", "Lahore"};
    const auto chosen = [&](const std::vector<KeyPress>& keys) {
        screen.LayOut(keys);
        return ChooseFrom(cities, 0, {}, false, screen.host);
    };
    EXPECT_EQ(chosen({CharacterKey('d'), CharacterKey('u'), kEnter}), 2);
    EXPECT_EQ(chosen({KeyPress{KeyCode::kEnd}, kEnter}), 3);
    EXPECT_EQ(chosen({KeyPress{KeyCode::kEnd}, KeyPress{KeyCode::kHome}, kEnter}), 0);
    EXPECT_EQ(chosen({KeyPress{KeyCode::kPageDown}, kEnter}), 3);
    EXPECT_EQ(chosen({CharacterKey('x'), kEnter}), 0) << "nothing begins so";
}

struct Paths : Sheets {
    Paths() {
        for (const char* name : {"times.csv", "times.txt"}) {
            std::ofstream(folder / name);
        }
        std::filesystem::create_directory(folder / "tables");
        std::ofstream(folder / ".hidden");
    }

    TemporaryFolder folder;
};

TEST_F(Paths, WhatBeginsSoIsFound) {
    EXPECT_THAT(PathsThatBegin(folder / "t"),
                ElementsAre(folder / "tables/", folder / "times.csv", folder / "times.txt"));
    EXPECT_THAT(PathsThatBegin(folder / ".h"), ElementsAre(folder / ".hidden"));
    EXPECT_TRUE(PathsThatBegin("/nowhere/a").empty());
}

TEST_F(Paths, TabCompletesAndShowsWhatItMayGoOnWith) {
    const auto line = std::make_shared<PathSheet>("Save As", folder / "ti");
    screen.desk.BringUp(line);
    screen.Press(KeyCode::kTab);
    EXPECT_THAT(screen.Text(), HasSubstr("times.csv"));
    screen.Type("t");
    screen.Press(KeyCode::kTab);
    screen.Press(KeyCode::kEnter);
    EXPECT_TRUE(line->HasEnded());
    EXPECT_EQ(line->Path(), folder / "times.txt");
}

TEST_F(Paths, GivenUpLineHasNoPath) {
    const auto line = std::make_shared<PathSheet>("Save As", folder / "a");
    screen.desk.BringUp(line);
    screen.Press(KeyCode::kEscape);
    EXPECT_TRUE(line->HasEnded());
    EXPECT_EQ(line->Path(), "");
}

TEST_F(Paths, FolderIsGoneInto) {
    std::ofstream(folder / "tables/one.txt");
    std::ofstream(folder / "tables/other.txt");
    for (const char* typed : {"tables/", "tables"}) {
        const auto line = std::make_shared<PathSheet>("Save As", folder / typed);
        screen.desk.BringUp(line);
        screen.Press(KeyCode::kEnter);
        EXPECT_FALSE(line->HasEnded());
        EXPECT_THAT(screen.Text(), HasSubstr("tables/o"));
        EXPECT_THAT(screen.Text(), HasSubstr("one.txt"));
        screen.desk.TakeAway(*line);
    }
}

TEST_F(Paths, TabCompletesWholeCharacters) {
    std::ofstream(folder / "عصر");
    std::ofstream(folder / "عشاء");
    const auto line = std::make_shared<PathSheet>("Save As", folder / "ع");
    screen.desk.BringUp(line);
    screen.Press(KeyCode::kTab);
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(line->Path(), folder / "ع");
}

struct DigitsOfBengali : Paths {
    DigitsOfBengali() {
        DataFolder(platform.files).Write("lang/Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
        currentLanguage = "Bengali";
        ShowOwnDigits(true);
    }
};

TEST_F(DigitsOfBengali, NamesOfFilesKeepTheirsWhereOthersAreShown) {
    std::ofstream(folder / "of 2026");
    std::ofstream(folder / "of 2027");
    const auto line = std::make_shared<PathSheet>("Save As", folder / "of");
    screen.desk.BringUp(line);
    screen.Press(KeyCode::kTab);
    EXPECT_THAT(screen.Text(), HasSubstr("of 2026"));
    EXPECT_THAT(screen.Text(), HasSubstr("of 2027"));
}

TEST_F(DigitsOfBengali, PathKeepsItsOwnWhereItsBeginningIsOutOfView) {
    const auto line =
        std::make_shared<PathSheet>("Save As", "/home/" + std::string(80, 'x') + " 2026");
    screen.desk.BringUp(line);
    EXPECT_THAT(screen.Text(), HasSubstr("x 2026"));
}

TEST_F(DigitsOfBengali, PathInAMessageKeepsItsOwnInAllItsLines) {
    screen.desk.BringUp(std::make_shared<MessageSheet>(
        "", "12 /home/" + std::string(80, 'x') + " 2026", std::vector<std::string>{"&OK"}));
    EXPECT_THAT(screen.Text(), HasSubstr("১২ "));
    EXPECT_THAT(screen.Text(), HasSubstr(" 2026"));
}

TEST(HelpText, PageWithoutItsMarks) {
    EXPECT_THAT(
        HelpParagraphs("<html><head><title>T</title><style>p{}</style></head><body>\n<h1>Qibla</h1>"
                       "<p>Turn &amp; look,\n  at 21&deg; &#8212; so.</p><ul><li>One<li>Two</ul>"
                       "<table><tr><th>a<th>b</tr></table></body></html>"),
        ElementsAre(HelpParagraph{"Qibla", true}, HelpParagraph{"Turn & look, at 21° — so.", false},
                    HelpParagraph{"• One", false}, HelpParagraph{"• Two", false},
                    HelpParagraph{"a │ b", false}));
}

TEST(HelpText, WhatIsNoEntityStays) {
    EXPECT_THAT(HelpParagraphs("a & b &unknown; c"),
                ElementsAre(HelpParagraph{"a & b &unknown; c", false}));
}

struct Help : Sheets {
    Help() {
        OpenPages([](const std::string& path) {
            std::string page = "<h1>About the " + path + "</h1>";
            for (int line = 0; line < 40; ++line) {
                page += "<p>line " + std::to_string(line) + " of the " + path + "</p>";
            }
            return page;
        });
    }

    void OpenPages(HelpSheet::Read read) {
        const HelpView view{"frmMain",
                            {},
                            "Horavex Help",
                            "Contents",
                            "Back",
                            "Forward",
                            {{"Face", "face"}, {"Moon", "moon"}},
                            0};
        sheet = std::make_shared<HelpSheet>(view, std::move(read), [this] { isClosed = true; });
        screen.desk.BringUp(sheet);
    }

    std::shared_ptr<HelpSheet> sheet;
    bool isClosed = false;
};

TEST_F(Help, PagesAreTurnedAndScrolled) {
    EXPECT_THAT(screen.Text(), HasSubstr("About the face"));
    screen.Press(KeyCode::kPageDown);
    EXPECT_THAT(screen.Text(), Not(HasSubstr("About the face")));
    screen.Press(KeyCode::kRight);
    EXPECT_THAT(screen.Text(), HasSubstr("About the moon"));
    screen.Press(KeyCode::kLeft);
    EXPECT_THAT(screen.Text(), HasSubstr("About the face"));
}

TEST_F(Help, TextIsLookedForOnAllPages) {
    screen.Type("/LINE 30 of the moon");
    screen.Press(KeyCode::kEnter);
    EXPECT_THAT(screen.Rows().at(0), HasSubstr("Moon"));
    EXPECT_THAT(screen.Text(), HasSubstr("line 30 of the moon"));
}

TEST_F(Help, NextOneIsFoundByItsKey) {
    screen.Type("/line 1");
    EXPECT_EQ(screen.Rows().back(), "/line 1");
    screen.Press(KeyCode::kEnter);
    EXPECT_THAT(screen.Rows().at(1), HasSubstr("line 1 of the face"));
    screen.Type("n");
    EXPECT_THAT(screen.Rows().at(1), HasSubstr("line 10 of the face"));
}

TEST_F(Help, LastOneOfAPageIsFollowedByTheNextPage) {
    screen.Type("/line 39");
    screen.Press(KeyCode::kEnter);
    EXPECT_THAT(screen.Text(), HasSubstr("line 39 of the face"));
    EXPECT_EQ(screen.LookOf("line 39").tone, Tone::kSelected);
    screen.Type("n");
    EXPECT_THAT(screen.Text(), HasSubstr("line 39 of the moon"));
    screen.Type("n");
    EXPECT_THAT(screen.Text(), HasSubstr("line 39 of the face"));
}

TEST_F(Help, SearchBeginsWithTheFirstLineOnView) {
    screen.Type("/about the");
    screen.Press(KeyCode::kEnter);
    EXPECT_THAT(screen.Text(), HasSubstr("About the face"));
}

TEST_F(Help, TextIsFoundAcrossTheEndOfALine) {
    OpenPages([](const std::string&) { return "<p>" + std::string(66, '-') + " last third</p>"; });
    screen.Type("/last third");
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(screen.LookOf("last").tone, Tone::kSelected);
    EXPECT_EQ(screen.LookOf("third").tone, Tone::kPlain) << "stands on the next line";
}

TEST_F(Help, TextThatIsNowhereStaysToBeMended) {
    screen.Type("/nobody");
    screen.Press(KeyCode::kEnter);
    EXPECT_EQ(screen.Rows().back(), "/nobody");
}

TEST_F(Help, NumbersAreFoundInEitherDigits) {
    DataFolder(platform.files).Write("lang/Arabic.ini", "[timetables]\nDigits=٠١٢٣٤٥٦٧٨٩\n");
    currentLanguage = "Arabic";
    ShowOwnDigits(true);
    for (const char* typed : {"/line ٣٩", "/line 39"}) {
        screen.Type(typed);
        screen.Press(KeyCode::kEnter);
        EXPECT_EQ(screen.LookOf("line ٣٩").tone, Tone::kSelected);
        screen.Press(KeyCode::kHome);
    }
}

TEST_F(Help, EscapeLeavesIt) {
    screen.Press(KeyCode::kEscape);
    EXPECT_TRUE(isClosed);
}

}  // namespace
}  // namespace horavex
