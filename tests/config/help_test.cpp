#include "config/help.h"

#include "base/fault.h"
#include "lang/language_pack.h"
#include "support/program_test.h"
#include "windows/frm_about.h"
#include "windows/frm_date_convert.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::ThrowsMessage;

struct HelpTest : ProgramTest {
    HelpTest() { StartAgain(); }

    /// The page that the viewer shows.
    std::string Path() { return platform.shell.help->pages[platform.shell.help->page].path; }

    std::string PathAt(int contextNumber) {
        ShowHelpContext(contextNumber);
        return Path();
    }

    void WriteHelpFile(const std::string& text) {
        platform.files.WriteWhole("/program/Horavex.HLP", BytesOf(text));
    }
};

TEST_F(HelpTest, FileLiesInTheFolderWhateverItsEnd) {
    platform.files.WriteWhole("/program/share/Horavex.HLP", BytesOf("[topics]\n9999=moon.html\n"));
    for (const char* folder : {"\\share\\", "  \\share  "}) {
        InitHelp("frmSample", folder);
        EXPECT_EQ(PathAt(kHelpIndex), "/program/help/English/moon.html") << folder;
        EXPECT_EQ(platform.shell.help->owner, "frmSample");
    }
}

TEST_F(HelpTest, TopicsOfTheButtonsHaveTheirPages) {
    EXPECT_EQ(PathAt(kHelpIndex), "/program/help/English/index.html");
    EXPECT_EQ(PathAt(kHelpSettings), "/program/help/English/settings.html");
    EXPECT_EQ(PathAt(kHelpQibla), "/program/help/English/qibla.html");
    EXPECT_EQ(PathAt(kHelpDateConversion), "/program/help/English/dates.html");
}

TEST_F(HelpTest, NumbersOfTheTopicsStayForTheyStandInTheHelpFile) {
    EXPECT_EQ(kHelpIndex, 9999);
    EXPECT_EQ(kHelpSettings, 10009);
    EXPECT_EQ(kHelpQibla, 10019);
    EXPECT_EQ(kHelpDateConversion, 10099);
}

TEST_F(HelpTest, UnknownTopicIsTheIndex) {
    EXPECT_EQ(PathAt(4711), "/program/help/English/index.html");
}

TEST_F(HelpTest, ViewIsPlacedNamedAndOwned) {
    ShowHelpContext(kHelpIndex);
    const HelpView& view = *platform.shell.help;
    EXPECT_EQ(view.owner, "HoravexMainForm");
    EXPECT_EQ(view.place.x, 256);
    EXPECT_EQ(view.place.y, 256);
    EXPECT_EQ(view.place.width, 512);
    EXPECT_EQ(view.place.height, 512);
    EXPECT_EQ(view.title, "Horavex Help");
    EXPECT_EQ(view.contents, "Contents");
    EXPECT_EQ(view.back, "Back");
    EXPECT_EQ(view.forward, "Forward");
    EXPECT_EQ(view.pages[0].title, "Welcome to Horavex");
}

TEST_F(HelpTest, HelpSpeaksTheLanguageOfThePack) {
    currentLanguage = "Arabic";
    EXPECT_EQ(PathAt(kHelpSettings), "/program/help/Arabic/settings.html");
    EXPECT_EQ(platform.shell.help->title, "مساعدة Horavex");
    EXPECT_EQ(platform.shell.help->pages[0].title, "مرحبًا بك في Horavex");
}

TEST_F(HelpTest, PageThatALanguageLacksIsTheEnglishOne) {
    currentLanguage = "Arabic";
    platform.files.Delete("/program/help/Arabic/qibla.html");
    EXPECT_EQ(PathAt(kHelpQibla), "/program/help/English/qibla.html");
    EXPECT_EQ(PathAt(kHelpSettings), "/program/help/Arabic/settings.html");
    currentLanguage = "Klingon";
    EXPECT_EQ(PathAt(kHelpSettings), "/program/help/English/settings.html");
}

TEST_F(HelpTest, ContentsNameEachPageOnceInTheOrderOfTheFile) {
    WriteHelpFile("[topics]\n9999=index.html\n1=qibla.html\n2=index.html\n3=moon.html\n");
    ShowHelpContext(3);
    std::vector<std::string> titles;
    for (const HelpPage& page : platform.shell.help->pages) {
        titles.push_back(page.title);
    }
    EXPECT_THAT(titles, ElementsAre("Welcome to Horavex", "The qibla",
                                    "The moon, and finding a lunar month"));
    EXPECT_EQ(platform.shell.help->page, 2U);
}

TEST_F(HelpTest, MissingHelpIsAFault) {
    WriteHelpFile("[topics]\n9999=gone.html\n");
    EXPECT_THROW(ShowHelpContext(kHelpIndex), FileFault);
    WriteHelpFile("[windows]\n");
    EXPECT_THAT([] { ShowHelpContext(kHelpIndex); },
                ThrowsMessage<FileFault>(EndsWith("\\Horavex.HLP: names no page")));
    platform.files.Delete("/program/Horavex.HLP");
    EXPECT_THROW(ShowHelpContext(kHelpIndex), FileFault);
}

TEST_F(HelpTest, PageWithoutATitleIsAFault) {
    platform.files.WriteWhole("/program/help/English/index.html", BytesOf("<h1>Welcome</h1>"));
    EXPECT_THROW(ShowHelpContext(kHelpIndex), FileFault);
}

TEST_F(HelpTest, ClosingTheSettingsWindowClosesTheHelp) {
    HoravexMainForm->Show();
    ShowHelpContext(kHelpIndex);
    HoravexMainForm->UserClose();
    EXPECT_FALSE(platform.shell.help);
}

TEST_F(HelpTest, UnloadOfTheSettingsWindowClosesTheHelp) {
    ShowHelpContext(kHelpIndex);
    HoravexMainForm->Unload(CloseReason::kSessionEnd);
    EXPECT_FALSE(platform.shell.help);
}

TEST_F(HelpTest, ButtonsOfTheSettingsWindowOpenTheirTopics) {
    HoravexMainForm->Show();
    HoravexMainForm->Help.UserClick();
    EXPECT_THAT(Path(), EndsWith("/index.html"));
    HoravexMainForm->SettingsHelp.UserClick();
    EXPECT_THAT(Path(), EndsWith("/settings.html"));
    HoravexMainForm->QiblaHelpButton.UserClick();
    EXPECT_THAT(Path(), EndsWith("/qibla.html"));
    frmDateConvert->Load();
    frmDateConvert->HijriDateConversionHelp.UserClick();
    EXPECT_THAT(Path(), EndsWith("/dates.html"));
}

TEST_F(HelpTest, HelpKeyOpensTheContextNumberOfTheForm) {
    EXPECT_EQ(HoravexMainForm->HelpContextId(), 1000);
    HoravexMainForm->UserHelp();
    EXPECT_THAT(Path(), EndsWith("/settings.html"));
    HoravexMainForm->SetHelpContextId(kHelpQibla);
    HoravexMainForm->UserHelp();
    EXPECT_THAT(Path(), EndsWith("/qibla.html"));
}

TEST_F(HelpTest, HelpKeyOnAFormWithoutANumberAsksTheHelpFile) {
    frmAbout->UserHelp();
    EXPECT_THAT(Path(), EndsWith("/program.html"));
    frmMain->UserHelp();
    EXPECT_THAT(Path(), EndsWith("/index.html"));
    Form unknown("frmUnknown");
    unknown.UserHelp();
    EXPECT_THAT(Path(), EndsWith("/index.html"));
}

}  // namespace
}  // namespace horavex
