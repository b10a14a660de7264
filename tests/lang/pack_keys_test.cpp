#include "lang/pack_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "lang/form_language.h"
#include "lang/lang_test.h"
#include "lang/language_pack.h"
#include "lang/walk_form.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

const PackSection& Section(std::size_t index) {
    return PackVocabularies().at(index);
}

TEST(PackVocabularies, AreTheSectionsThatCodeReads) {
    ASSERT_THAT(PackVocabularies(), SizeIs(14));
    EXPECT_EQ(Section(0).name, "msg");
    EXPECT_EQ(Section(1).name, "other");
    EXPECT_EQ(Section(2).name, "Azan");
    EXPECT_EQ(Section(3).name, "desktop");
    EXPECT_EQ(Section(4).name, "timetables");
    EXPECT_EQ(Section(5).name, "moments");
    EXPECT_EQ(Section(6).name, "notices");
    EXPECT_EQ(Section(7).name, "adjustments");
    EXPECT_EQ(Section(8).name, "reminders");
    EXPECT_EQ(Section(9).name, "sky");
    EXPECT_EQ(Section(10).name, "crescent");
    EXPECT_EQ(Section(11).name, "methods");
    EXPECT_EQ(Section(12).name, "terminal");
}

TEST(PackVocabularies, MessagesAreNumberedTo24WithoutTheFreeEight) {
    EXPECT_THAT(Section(0).keys, SizeIs(23));
    EXPECT_EQ(Section(0).keys.front(), "1");
    EXPECT_EQ(Section(0).keys.back(), "24");
    EXPECT_THAT(Section(0).keys, Not(Contains("8")));
}

TEST(PackVocabularies, LabelsAreNumberedTo20AndFollowedByTheEraAndPrayersWithoutShurooq) {
    EXPECT_THAT(Section(1).keys, SizeIs(26));
    EXPECT_EQ(Section(1).keys[7], "8");
    const std::vector<std::string> names(Section(1).keys.begin() + 20, Section(1).keys.end());
    EXPECT_THAT(names, ElementsAre("AH", "Fajr", "Zuhr", "Asr", "Maghrib", "Isha"));
}

TEST(PackVocabularies, AthanWindowHasAPrayersNumberWithoutShurooq) {
    EXPECT_THAT(Section(2).keys, ElementsAre("0", "2", "3", "4", "5"));
}

class PackSectionsTest : public LangTest {};

TEST_F(PackSectionsTest, KeysOfAFormAreWhatItsWalkReads) {
    EXPECT_THAT(FormPackKeys(WalkForm()),
                ElementsAre("frmWalk", "fraAsr", "fraAsrTTIP", "optAsrRatio_1", "optAsrRatioTTIP_1",
                            "optAsrRatio_2", "lblTitle", "lblTitleTTIP", "SkinLabel1",
                            "SkinLabel1TTIP", "chkAlarm", "chkAlarmTTIP", "cmdClose_0",
                            "cmdCloseTTIP_0", "SettingsSet", "SettingsSetTTIP", "mnuFile",
                            "mnuExit", "lblDeprMax", "lblCityBanner", "MyLblTime"));
}

TEST_F(PackSectionsTest, PackOfTheseKeysLeavesNothingBlank) {
    std::string pack = "[frmWalk]\n";
    for (const std::string& key : FormPackKeys(WalkForm())) {
        pack += key + "=text\n";
    }
    WritePack("Pack.ini", pack);
    WalkForm form;
    LoadFormLanguage(form, "\\lang\\Pack.ini");
    EXPECT_EQ(form.Caption(), "text");
    for (const Control* control : form.Controls()) {
        if (TakesPackTexts(*control)) {
            EXPECT_EQ(control->Caption(), "text") << control->Name();
        }
    }
    EXPECT_EQ(FormPackKeys(form).size(), FormPackKeys(WalkForm()).size());  // no tooltip lost
}

TEST_F(PackSectionsTest, RuntimeMembersAskForNoKey) {
    WalkForm form;
    form.mnuL.Load(1);
    EXPECT_THAT(FormPackKeys(form), Not(Contains("mnuL_1")));
}

TEST_F(PackSectionsTest, FormsStandAsDefined) {
    frmMain->SetCaption("changed");
    frmMain->mnuL.Load(1);
    std::vector<std::string> names;
    for (const auto& form : PackForms()) {
        names.push_back(form->Name());
        EXPECT_FALSE(form->IsLoaded());
        EXPECT_NE(form->Caption(), "changed");
    }
    EXPECT_THAT(
        names, ElementsAre("frmMain", "HoravexMainForm", "fMessage", "frmAthan", "fCountry",
                           "NewCoordinates", "frmWizard", "frmDateConvert", "fQibla", "frmDistance",
                           "Moon_Phases", "frmRamadan", "frmAbout", "frmTimes", "frmMonth",
                           "frmAdjust", "frmReminders", "frmSky", "frmCrescent"));
}

TEST_F(PackSectionsTest, SectionsAreTheVocabulariesAndThenOneForEachForm) {
    std::vector<std::string> names;
    for (const PackSection& section : PackSections()) {
        names.push_back(section.name);
    }
    EXPECT_THAT(names,
                ElementsAre("msg", "other", "Azan", "desktop", "timetables", "moments", "notices",
                            "adjustments", "reminders", "sky", "crescent", "methods", "terminal",
                            "distance", "frmMain", "HoravexMainForm", "fMessage", "frmAthan",
                            "fCountry", "NewCoordinates", "frmWizard", "frmDateConvert", "fQibla",
                            "frmDistance", "Moon_Phases", "frmRamadan", "frmAbout", "frmTimes",
                            "frmMonth", "frmAdjust", "frmReminders", "frmSky", "frmCrescent"));
}

TEST_F(PackSectionsTest, HelpOnTheMoonHasItsTextBesideItsCaptions) {
    const auto sections = PackSections();
    const auto help = std::ranges::find(sections, "frmRamadan", &PackSection::name);
    ASSERT_NE(help, sections.end());
    EXPECT_THAT(help->keys, ElementsAre("frmRamadan", "SkinLabel1", "cmdClose", "Text1"));
}

TEST_F(PackSectionsTest, HiddenLabelsOfTheFaceHaveKeysAndComputedOnesNone) {
    const auto keys = PackSections()[14].keys;
    for (const char* key : {"frmMain", "lblZoritName_0", "lblZoritNameArabic_5", "lblDate",
                            "lblCurrTime", "Label1", "lblNextAthan", "Label3", "lblRemaining",
                            "mnuAthan", "mnuChangeLanguage", "mnuPopup", "mnuPopExit"}) {
        EXPECT_THAT(keys, Contains(key));
    }
    for (const char* key :
         {"lblTime_0", "lblCity", "lblQibla", "mnuL_0", "tmrUpdate", "traypic_0"}) {
        EXPECT_THAT(keys, Not(Contains(key)));
    }
}

}  // namespace
}  // namespace horavex
