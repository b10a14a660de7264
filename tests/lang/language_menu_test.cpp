#include "lang/language_menu.h"

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "lang/form_language.h"
#include "lang/lang_test.h"
#include "lang/language_pack.h"
#include "store/stored_values.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kBitmap = "BM and the pixels";

class LanguageMenuTest : public LangTest {
protected:
    void WritePacks(const std::vector<std::string>& fileNames) {
        for (const std::string& name : fileNames) {
            WritePack(name, "[frmMain]\nfrmMain=title of " + name + "\n");
        }
    }

    /// The captions of the submenu in order, "*" behind the checked ones and "~" behind grey ones.
    static std::vector<std::string> Menu() {
        std::vector<std::string> captions;
        for (const MenuItem* item : frmMain->mnuChangeLanguage.Entries()) {
            captions.push_back(item->Caption() + (item->Checked() ? "*" : "") +
                               (item->Enabled() ? "" : "~"));
        }
        return captions;
    }

    static std::vector<std::string> Pictures() {
        std::vector<std::string> pictures;
        for (const MenuItem* item : frmMain->mnuChangeLanguage.Entries()) {
            pictures.push_back(item->Picture());
        }
        return pictures;
    }
};

// The scan

TEST_F(LanguageMenuTest, EachPackIsAnItemInTheOrderOfTheFolder) {
    WritePacks({"French.ini", "Arabic.ini", "english.ini", "German.ini"});
    BuildLanguageMenu("German");
    EXPECT_THAT(Menu(), ElementsAre("Arabic", "French", "German*", "english"));
    EXPECT_EQ(languageMenuBuilt, kTrue);
    EXPECT_EQ(languageFilesPresent, kTrue);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(LanguageMenuTest, EachLanguageStandsWithItsOwnNameWhereItsPackTellsThat) {
    WritePack("French.ini", "[desktop]\nOwnName=Français\n");
    WritePack("German.ini", "[frmMain]\n");
    BuildLanguageMenu("German");
    EXPECT_EQ(frmMain->mnuL(0).Aside(), "Français");
    EXPECT_EQ(frmMain->mnuL(1).Aside(), "");
}

TEST_F(LanguageMenuTest, FirstPackTakesTheItemOfTheDefinition) {
    WritePacks({"Arabic.ini"});
    BuildLanguageMenu("English");
    EXPECT_THAT(Menu(), ElementsAre("Arabic"));
    EXPECT_EQ(frmMain->mnuL(0).Caption(), "Arabic");
    EXPECT_FALSE(frmMain->mnuL.Contains(1));
}

TEST_F(LanguageMenuTest, ItemsMadeAtRunTimeAreMembersOfTheArray) {
    WritePacks({"A.ini", "B.ini", "C.ini"});
    BuildLanguageMenu("");
    EXPECT_EQ(frmMain->mnuL(1).Caption(), "B");
    EXPECT_EQ(frmMain->mnuL(2).Caption(), "C");
    EXPECT_EQ(frmMain->mnuL(2).Index(), 2);
}

TEST_F(LanguageMenuTest, StoredLanguageInCapitalsIsCheckedAllTheSame) {
    WritePacks({"Arabic.ini", "English.ini"});
    BuildLanguageMenu("ARABIC");
    EXPECT_THAT(Menu(), ElementsAre("Arabic*", "English"));
}

TEST_F(LanguageMenuTest, PackInCapitalsIsCheckedForAStoredSmallName) {
    WritePacks({"ARABIC.ini", "English.ini"});
    BuildLanguageMenu("arabic");
    EXPECT_THAT(Menu(), ElementsAre("ARABIC*", "English"));
}

TEST_F(LanguageMenuTest, UnknownLanguageChecksNothing) {
    WritePacks({"Arabic.ini", "English.ini"});
    BuildLanguageMenu("Klingon");
    EXPECT_THAT(Menu(), ElementsAre("Arabic", "English"));
}

TEST_F(LanguageMenuTest, OtherFilesOfTheFolderAreNoLanguages) {
    WritePacks({"English.ini", "English.ini.bak", "README.md", "ini"});
    BuildLanguageMenu("English");
    EXPECT_THAT(Menu(), ElementsAre("English*"));
}

TEST_F(LanguageMenuTest, NameEndsAtTheFirstSuffix) {
    WritePacks({"Old.ini.ini"});
    BuildLanguageMenu("old");
    EXPECT_THAT(Menu(), ElementsAre("Old*"));
}

TEST_F(LanguageMenuTest, ContentOfAPackPlaysNoPart) {
    WritePack("Empty.ini", "");
    BuildLanguageMenu("Empty");
    EXPECT_THAT(Menu(), ElementsAre("Empty*"));
}

TEST_F(LanguageMenuTest, BuildingChangesNeitherLanguageNorCaptions) {
    WritePacks({"English.ini", "French.ini"});
    currentLanguage = "English";
    BuildLanguageMenu("French");
    EXPECT_EQ(currentLanguage, "English");
    EXPECT_EQ(frmMain->Caption(), "Horavex");
    EXPECT_THAT(platform.face.variables, IsEmpty());
}

TEST_F(LanguageMenuTest, HandlersReachTheItemsMadeAtRunTime) {
    std::vector<int> clicked;
    frmMain->mnuL.Bind([&clicked](MenuItem& item) {
        item.onClick = [&clicked, &item] { clicked.push_back(item.Index()); };
    });
    WritePacks({"A.ini", "B.ini"});
    BuildLanguageMenu("A");
    frmMain->mnuL(1).UserClick();
    EXPECT_THAT(clicked, ElementsAre(1));
}

// Without any pack

TEST_F(LanguageMenuTest, EmptyFolderSaysNotAvailable) {
    WritePack("README.md", "no pack");
    BuildLanguageMenu("English");
    EXPECT_THAT(Menu(), ElementsAre("Not Available"));
    EXPECT_EQ(languageFilesPresent, kFalse);
    EXPECT_EQ(languageMenuBuilt, kTrue);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(LanguageMenuTest, MissingFolderSaysNotAvailable) {
    BuildLanguageMenu("English");
    EXPECT_THAT(Menu(), ElementsAre("Not Available"));
    EXPECT_EQ(languageFilesPresent, kFalse);
}

TEST_F(LanguageMenuTest, WithoutAPackNoFormIsWalkedAndMessagesGiveTheirDefaults) {
    currentLanguage = "English";
    BuildLanguageMenu(currentLanguage);
    TranslateOnLoad(*frmMain);
    EXPECT_EQ(frmMain->Caption(), "Horavex");
    EXPECT_EQ(frmMain->mnuAthan.Caption(), "Athan");
    EXPECT_EQ(GetLangString("other", "14", "Qibla"), "Qibla");
    EXPECT_THAT(platform.face.variables, IsEmpty());
}

TEST_F(LanguageMenuTest, NotAvailableCanBeChosenAndWalksNothing) {
    BuildLanguageMenu("English");
    mnuL_Click(0);
    EXPECT_EQ(currentLanguage, "Not Available");
    EXPECT_THAT(Menu(), ElementsAre("Not Available*"));
    EXPECT_EQ(frmMain->Caption(), "Horavex");
}

TEST_F(LanguageMenuTest, PackThatIsNamedLikeAnEmptyItemIsTakenForNone) {
    WritePacks({"-.ini"});
    BuildLanguageMenu("-");
    EXPECT_THAT(Menu(), ElementsAre("Not Available*"));
}

// Emblems

TEST_F(LanguageMenuTest, EmblemIsAPathInTheProgramFolder) {
    WritePacks({"Arabic.ini", "French.ini"});
    WritePack("French.bmp", kBitmap);
    BuildLanguageMenu("Arabic");
    EXPECT_THAT(Pictures(), ElementsAre("", "\\Lang\\French.bmp"));
    EXPECT_EQ(StringOf(platform.folder.ReadWhole(frmMain->mnuL(1).Picture())), kBitmap);
}

TEST_F(LanguageMenuTest, EmblemsNameMustMatchInEveryLetter) {
    WritePacks({"Arabic.ini", "French.ini", "German.ini"});
    WritePack("arabic.bmp", kBitmap);
    WritePack("French.BMP", kBitmap);
    WritePack("German2.bmp", kBitmap);
    BuildLanguageMenu("French");
    EXPECT_THAT(Pictures(), ElementsAre("", "", ""));
}

TEST_F(LanguageMenuTest, EmblemWithoutAPackIsOfNoUse) {
    WritePacks({"Arabic.ini"});
    WritePack("French.bmp", kBitmap);
    BuildLanguageMenu("Arabic");
    EXPECT_THAT(Pictures(), ElementsAre(""));
    EXPECT_THAT(Menu(), ElementsAre("Arabic*"));
}

TEST_F(LanguageMenuTest, EmblemThatIsNoBitmapEndsTheScanBeforeTheFirstItem) {
    WritePacks({"Arabic.ini", "French.ini"});
    WritePack("French.bmp", "no picture");
    BuildLanguageMenu("French");
    EXPECT_THAT(Menu(), ElementsAre("-"));
    EXPECT_EQ(languageFilesPresent, kFalse);
    EXPECT_EQ(languageMenuBuilt, kFalse);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_THAT(platform.dialogs.messages[0].text, HasSubstr("French.bmp"));
}

TEST_F(LanguageMenuTest, EmblemThatCannotBeReadEndsTheScanToo) {
    WritePacks({"French.ini"});
    WritePack("French.bmp", kBitmap);
    platform.failingFiles.FailCall(1);
    BuildLanguageMenu("French");
    EXPECT_THAT(Menu(), ElementsAre("-"));
    EXPECT_THAT(platform.dialogs.messages, SizeIs(1));
}

// The error path

TEST_F(LanguageMenuTest, SuffixInCapitalsEndsTheScanWithAMessage) {
    WritePacks({"Arabic.ini", "FRENCH.INI", "German.ini"});
    BuildLanguageMenu("Arabic");
    EXPECT_THAT(Menu(), ElementsAre("Arabic*"));
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_THAT(platform.dialogs.messages[0].text, HasSubstr("FRENCH.INI"));
    EXPECT_EQ(platform.dialogs.messages[0].title, "");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kNone);
    EXPECT_EQ(languageFilesPresent, kTrue);
    EXPECT_EQ(languageMenuBuilt, kFalse);
}

TEST_F(LanguageMenuTest, SuffixInCapitalsInFrontLeavesNoPackSeen) {
    WritePacks({"ARABIC.INI", "French.ini"});
    BuildLanguageMenu("French");
    EXPECT_THAT(Menu(), ElementsAre("-"));
    EXPECT_EQ(languageFilesPresent, kFalse);
    EXPECT_THAT(platform.dialogs.messages, SizeIs(1));
}

TEST_F(LanguageMenuTest, MixedSuffixIsFoundWhereASmallOneStandsBeforeIt) {
    WritePacks({"Odd.ini.INI"});
    BuildLanguageMenu("Odd");
    EXPECT_THAT(Menu(), ElementsAre("Odd*"));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(LanguageMenuTest, AfterACutScanAChoiceUnchecksNothing) {
    WritePacks({"Arabic.ini", "English.ini", "FRENCH.INI"});
    BuildLanguageMenu("Arabic");
    mnuL_Click(1);
    EXPECT_EQ(currentLanguage, "English");
    EXPECT_THAT(Menu(), ElementsAre("Arabic*", "English*"));
}

// The user's folder over the installed one

TEST(LanguageMenuOfTwoFolders, MergesBothWithTheUsersPacksInFront) {
    TestPlatform platform;
    const ProgramFolder merged(platform.files, "/user", "/installed");
    const Platform& ports = Ports();
    const Platform mergedPorts{
        ports.clock,     ports.eventLoop,   ports.files,     merged,
        ports.formats,   ports.dialogs,     ports.registry,  ports.instanceGuard,
        ports.face,      ports.windows,     ports.tray,      ports.shell,
        ports.network,   ports.athanFace,   ports.audioFile, ports.audioPlayer,
        ports.zoneRules, ports.whereabouts, ports.notices,   ports.mediaPlayers,
        ports.session,   ports.almanac,     ports.broadcast};
    InstallPlatform(&mergedPorts);
    platform.files.WriteWhole("/installed/lang/Arabic.ini", BytesOf("[frmMain]\nfrmMain=old"));
    platform.files.WriteWhole("/installed/lang/English.ini", BytesOf("[frmMain]\nfrmMain=new"));
    platform.files.WriteWhole("/installed/lang/English.bmp", BytesOf(kBitmap));
    platform.files.WriteWhole("/user/Lang/Urdu.ini", BytesOf(""));
    platform.files.WriteWhole("/user/Lang/arabic.ini", BytesOf("[frmMain]\nfrmMain=mine"));
    BuildLanguageMenu("English");
    std::vector<std::string> captions;
    for (const MenuItem* item : frmMain->mnuChangeLanguage.Entries()) {
        captions.push_back(item->Caption());
    }
    EXPECT_THAT(captions, ElementsAre("Urdu", "arabic", "English"));
    EXPECT_EQ(frmMain->mnuL(2).Picture(), "\\Lang\\English.bmp");
    mnuL_Click(1);
    EXPECT_EQ(frmMain->Caption(), "mine");
}

// The choice

TEST_F(LanguageMenuTest, ChoiceBecomesTheLanguageAndTheOnlyCheckedItem) {
    WritePacks({"Arabic.ini", "English.ini", "French.ini"});
    BuildLanguageMenu("Arabic");
    mnuL_Click(2);
    EXPECT_EQ(currentLanguage, "French");
    EXPECT_THAT(Menu(), ElementsAre("Arabic", "English", "French*"));
    mnuL_Click(0);
    EXPECT_EQ(currentLanguage, "Arabic");
    EXPECT_THAT(Menu(), ElementsAre("Arabic*", "English", "French"));
}

TEST_F(LanguageMenuTest, ChoosingTheSameAgainKeepsItChecked) {
    WritePacks({"Arabic.ini", "English.ini"});
    BuildLanguageMenu("English");
    mnuL_Click(1);
    EXPECT_THAT(Menu(), ElementsAre("Arabic", "English*"));
}

TEST_F(LanguageMenuTest, ChoiceTranslatesTheWindowOfTheFaceAtOnce) {
    WritePacks({"Arabic.ini", "French.ini"});
    WritePack("French.ini", "[frmMain]\nfrmMain=Titre\nmnuHelp=Aide\n[other]\n14=Direction");
    BuildLanguageMenu("Arabic");
    mnuL_Click(1);
    EXPECT_EQ(frmMain->Caption(), "Titre");
    EXPECT_EQ(frmMain->mnuHelp.Caption(), "Aide");
    EXPECT_EQ(platform.face.Value("_root.help"), "Aide");
    EXPECT_EQ(platform.face.Value("qibla"), "Direction");
    EXPECT_THAT(platform.face.variables, SizeIs(6));
}

TEST_F(LanguageMenuTest, ChoiceLeavesTheLanguageItemsTheirNames) {
    WritePacks({"Arabic.ini", "French.ini"});
    WritePack("French.ini", "[frmMain]\nmnuL_0=wrong\nmnuL_1=wrong");
    BuildLanguageMenu("Arabic");
    mnuL_Click(1);
    EXPECT_THAT(Menu(), ElementsAre("Arabic", "French*"));
}

TEST_F(LanguageMenuTest, MessagesFollowTheChoice) {
    WritePack("Arabic.ini", "[msg]\n1=a");
    WritePack("French.ini", "[msg]\n1=f");
    BuildLanguageMenu("Arabic");
    mnuL_Click(1);
    EXPECT_EQ(GetLangString("msg", "1", ""), "f");
    mnuL_Click(0);
    EXPECT_EQ(GetLangString("msg", "1", ""), "a");
}

TEST_F(LanguageMenuTest, PackThatHasGoneMeanwhileBlanksTheWindow) {
    WritePacks({"Arabic.ini", "French.ini"});
    BuildLanguageMenu("Arabic");
    data.Remove("lang/French.ini");
    mnuL_Click(1);
    EXPECT_EQ(frmMain->Caption(), "frmMain");
    EXPECT_EQ(frmMain->mnuAthan.Caption(), "");
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(LanguageMenuTest, ChoiceIsNotStored) {
    WritePacks({"Arabic.ini", "French.ini"});
    BuildLanguageMenu("Arabic");
    mnuL_Click(1);
    EXPECT_EQ(ReadStoredLanguage(), "English");  // the default where nothing is stored
}

TEST_F(LanguageMenuTest, IndexWithoutAnItemIsAFaultThatChangesNothing) {
    WritePacks({"Arabic.ini"});
    BuildLanguageMenu("Arabic");
    currentLanguage = "Arabic";
    EXPECT_THROW(mnuL_Click(1), BoundsFault);
    EXPECT_EQ(currentLanguage, "Arabic");
    EXPECT_THAT(Menu(), ElementsAre("Arabic*"));
}

TEST_F(LanguageMenuTest, FreshProcessHasNoMenu) {
    WritePacks({"Arabic.ini", "French.ini"});
    BuildLanguageMenu("Arabic");
    ResetProgramState();
    EXPECT_EQ(languageMenuBuilt, kFalse);
    EXPECT_THAT(Menu(), ElementsAre("-"));
}

}  // namespace
}  // namespace horavex
