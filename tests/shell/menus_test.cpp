#include "shell/menus.h"

#include <vector>

#include "shell/close_face.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_athan.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_sky.h"
#include "windows/frm_times.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class MenusTest : public ProgramTest {
protected:
    MenusTest() { StartAgain(); }

    std::vector<std::string> NamesIn(const MenuItem& menu) {
        std::vector<std::string> names;
        for (const MenuItem* entry : menu.Entries()) {
            names.push_back(entry->Name());
        }
        return names;
    }

    std::vector<std::string> Messages() const {
        std::vector<std::string> texts;
        for (const auto& message : platform.dialogs.messages) {
            texts.push_back(message.text);
        }
        return texts;
    }
};

TEST_F(MenusTest, FourMenusOfTheFaceAndTheOneOfTheIcon) {
    EXPECT_THAT(NamesIn(frmMain->mnuAthan), ElementsAre("mnuThanNow", "mnuExport", "mnuExit"));
    EXPECT_THAT(NamesIn(frmMain->mnuSettings),
                ElementsAre("mnumSettings", "mnuChangeCity", "mnuAthanSettings", "mnuPrayerTimes",
                            "mnuChangeLanguage", "mnuWizard", "mnuLine1", "mnuAdjustments",
                            "mnuReminders", "mnuLine3", "mnuSmall", "mnuFullScreen", "mnuAbove"));
    EXPECT_THAT(NamesIn(frmMain->mnuTools),
                ElementsAre("mnuDateConversion", "mnuQibla", "mnuDistance", "mnuMoonPhases",
                            "mnuLine2", "mnuSky", "mnuCrescent"));
    EXPECT_THAT(NamesIn(frmMain->mnuHelp), ElementsAre("mnuAbout", "mnuHelpIndex", "mnuUpdate"));
    EXPECT_THAT(
        NamesIn(frmMain->mnuPopup),
        ElementsAre("mnuPopFront", "mnuLine4", "mnuPopAthan", "mnuPopMoonPhases", "mnuPopShow",
                    "mnuPopQibla", "mnuPopExport", "mnuPopHelp", "mnuPopVisitWebSite",
                    "mnuPopEmailUS", "mnuLine5", "mnuPopAdjustments", "mnuPopReminders", "mnuLine6",
                    "mnuPopQuietNext", "mnuPopQuietToday", "mnuPopQuietHours", "mnuLine7",
                    "mnuPopSmall", "mnuPopFullScreen", "mnuPopAbove", "mnuLine8", "mnuPopExit"));
}

TEST_F(MenusTest, FiveEntriesAreDisabled) {
    std::vector<std::string> disabled;
    for (const Control* control : frmMain->Controls()) {
        if (control->Kind() == ControlKind::kMenuItem && !control->Enabled()) {
            disabled.push_back(control->Name());
        }
    }
    EXPECT_THAT(disabled, ElementsAre("mnuChangeCity", "mnuPopup", "mnuPopAthan",
                                      "mnuPopMoonPhases", "mnuPopQibla"));
}

TEST_F(MenusTest, EntriesThatDoNothingSayWhyOnceTheirMenuOpens) {
    PopUpAtPointer(frmMain->mnuPopup);
    EXPECT_EQ(frmMain->mnuPopQibla.Hint(), "Choose this in the menus of the window.");
    EXPECT_EQ(frmMain->mnuPopEmailUS.Hint(), "Horavex has no mail address.");
    EXPECT_EQ(frmMain->mnuPopExport.Hint(), "");
    PopUp(frmMain->mnuSettings, 0, 0);
    EXPECT_EQ(frmMain->mnuChangeCity.Hint(), "Change the city in the settings window.");
}

TEST_F(MenusTest, IconsMenuBeginsWithWhatBringsAHiddenFaceBack) {
    frmMain->Hide();
    frmMain->mnuPopup.Entries().front()->UserClick();
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(MenusTest, SettingsEntryBringsTheSettingsWindowUpInFrontOfTheFace) {
    HoravexMainForm->SetWindowState(WindowState::kMinimized);
    frmMain->mnumSettings.UserClick();
    EXPECT_TRUE(HoravexMainForm->Visible());
    EXPECT_FALSE(HoravexMainForm->IsModal());
    EXPECT_EQ(HoravexMainForm->State(), WindowState::kNormal);
    EXPECT_EQ(HoravexMainForm->Owner(), &*frmMain);
}

TEST_F(MenusTest, WizardEntryBringsTheWizardUpInFrontOfTheFace) {
    frmMain->mnuWizard.UserClick();
    EXPECT_TRUE(frmWizard->Visible());
    EXPECT_FALSE(frmWizard->IsModal());
    EXPECT_EQ(frmWizard->Owner(), &*frmMain);
}

TEST_F(MenusTest, CityEntryIsDisabledAndOpensThePicker) {
    frmMain->mnuChangeCity.UserClick();
    EXPECT_FALSE(fCountry->IsLoaded());
    frmMain->mnuChangeCity.SetEnabled(true);
    frmMain->mnuChangeCity.UserClick();
    EXPECT_TRUE(fCountry->Visible());
}

TEST_F(MenusTest, ShowEntryTurnsTheVisibilityOver) {
    frmMain->mnuPopShow.UserClick();
    EXPECT_FALSE(frmMain->Visible());
    EXPECT_FALSE(frmMain->mnuPopShow.Checked());
    frmMain->mnuPopShow.UserClick();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_TRUE(frmMain->mnuPopShow.Checked());
}

TEST_F(MenusTest, CheckMarkFollowsTheShowEntryAlone) {
    frmMain->mnuPopShow.UserClick();
    frmMain->mnuPopShow.UserClick();
    frmMain->UserClose();
    EXPECT_TRUE(frmMain->mnuPopShow.Checked());
    frmMain->Show();
    EXPECT_TRUE(frmMain->mnuPopShow.Checked());
}

TEST_F(MenusTest, ShowEntryHidesAMinimisedFaceAndRestoresAHiddenOne) {
    frmMain->SetWindowState(WindowState::kMinimized);
    frmMain->mnuPopShow.UserClick();
    EXPECT_FALSE(frmMain->Visible());
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    frmMain->mnuPopShow.UserClick();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_EQ(frmMain->State(), WindowState::kNormal);
}

TEST_F(MenusTest, VisitOpensTheRootPageWhereTheMachineIsOnline) {
    platform.network.connection = {true, kLanConnection};
    frmMain->mnuPopVisitWebSite.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress https://horavex.invalid/"));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(MenusTest, VisitGoesToTheServerThatIsSet) {
    platform.network.connection = {true, kLanConnection};
    platform.registry.SetValue("Software\\Horavex\\Settings", "Web Server",
                               "https://prayer.example");
    frmMain->mnuPopVisitWebSite.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress https://prayer.example/"));
}

TEST_F(MenusTest, VisitTellsTheProbesTextOffline) {
    platform.network.connection = {false, kConnectionOffline};
    frmMain->mnuPopVisitWebSite.UserClick();
    EXPECT_THAT(platform.desktop.calls, IsEmpty());
    EXPECT_THAT(Messages(), ElementsAre("No internet connection."));
}

TEST_F(MenusTest, PrayerTimesEntryAndTheFacesCommandOpenTheDayBrowserModally) {
    frmMain->mnuPrayerTimes.UserClick();
    frmTimes->Hide();
    platform.face.onFSCommand("IDC_FS_allTimes", "");
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("load frmTimes", "show frmTimes", "modal frmTimes", "show frmTimes",
                            "modal frmTimes"));
    EXPECT_EQ(frmTimes->Owner(), &*frmMain);
}

TEST_F(MenusTest, AboutEntryShowsTheWindowModalOverTheFace) {
    frmMain->mnuAbout.UserClick();
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("load frmAbout", "show frmAbout", "modal frmAbout"));
    EXPECT_EQ(frmAbout->Owner(), &*frmMain);
}

TEST_F(MenusTest, BothHelpEntriesOpenTheIndex) {
    for (MenuItem* entry : {&frmMain->mnuHelpIndex, &frmMain->mnuPopHelp}) {
        platform.desktop.calls.clear();
        entry->UserClick();
        EXPECT_THAT(platform.desktop.calls, ElementsAre("ShowHelp Welcome to Horavex"));
    }
}

TEST_F(MenusTest, HelpOfTheAthanSettingsOpensTheIndexToo) {
    platform.desktop.calls.clear();
    frmAthan->AthanSettingHelp.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("ShowHelp Welcome to Horavex"));
}

TEST_F(MenusTest, UpdateEntryChecks) {
    platform.network.connection = {true, kLanConnection};
    frmMain->mnuUpdate.UserClick();
    EXPECT_THAT(platform.network.requests,
                ElementsAre("https://horavex.invalid/update/update.txt"));
}

TEST_F(MenusTest, BothExportEntriesAskForAFile) {
    frmMain->mnuExport.UserClick();
    EXPECT_EQ(platform.dialogs.saveRequests.size(), 1U);
    frmMain->mnuPopExport.UserClick();
    EXPECT_EQ(platform.dialogs.saveRequests.size(), 2U);
}

TEST_F(MenusTest, EmailEntryDoesNothing) {
    frmMain->mnuPopEmailUS.UserClick();
    EXPECT_THAT(platform.desktop.calls, IsEmpty());
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(MenusTest, ToolsComeUpModalInFrontOfTheFace) {
    const std::pair<MenuItem*, Form*> tools[] = {{&frmMain->mnuDateConversion, &*frmDateConvert},
                                                 {&frmMain->mnuQibla, &*fQibla},
                                                 {&frmMain->mnuDistance, &*frmDistance},
                                                 {&frmMain->mnuMoonPhases, &*Moon_Phases},
                                                 {&frmMain->mnuSky, &*frmSky},
                                                 {&frmMain->mnuCrescent, &*frmCrescent}};
    for (const auto& [entry, form] : tools) {
        entry->UserClick();
        EXPECT_TRUE(form->IsModal()) << form->Name();
        EXPECT_EQ(form->Owner(), &*frmMain) << form->Name();
        form->UserClose();
        EXPECT_FALSE(form->IsLoaded()) << form->Name();
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(MenusTest, ButtonsOfTheSettingsWindowOpenTheAthanSettingsAndTheQibla) {
    HoravexMainForm->Show();
    for (const auto& [button, form] :
         {std::pair<CommandButton*, Form*>{&HoravexMainForm->cmdAthan, &*frmAthan},
          {&HoravexMainForm->cmdQibla, &*fQibla}}) {
        button->SetEnabled(true);
        button->UserClick();
        EXPECT_TRUE(form->IsModal()) << form->Name();
        form->UserClose();
    }
}

TEST_F(MenusTest, QiblaEntryOfTheIconIsDisabledAndDoesAsTheFaces) {
    frmMain->mnuPopQibla.UserClick();
    EXPECT_FALSE(fQibla->IsLoaded());
    frmMain->mnuPopQibla.SetEnabled(true);
    frmMain->mnuPopQibla.UserClick();
    EXPECT_TRUE(fQibla->IsModal());
}

using CloseFaceTest = MenusTest;

TEST_F(CloseFaceTest, HidesBehindTheIcon) {
    CloseFace();
    EXPECT_FALSE(frmMain->Visible());
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(CloseFaceTest, MinimisesWithoutANotificationAreaAndSaysSoOnce) {
    platform.tray.hasHost = false;
    CloseFace();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    EXPECT_THAT(Messages(), ElementsAre(HasSubstr("no notification area")));
    frmMain->SetWindowState(WindowState::kNormal);
    CloseFace();
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    EXPECT_EQ(Messages().size(), 1U);
}

TEST_F(CloseFaceTest, FaceHiddenBehindTheIconComesBackMinimisedWhenTheAreaGoes) {
    CloseFace();
    BringHiddenFaceIntoWindowList();
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
}

TEST_F(CloseFaceTest, FaceOnViewStaysAsItIsWhenTheAreaGoes) {
    BringHiddenFaceIntoWindowList();
    EXPECT_EQ(frmMain->State(), WindowState::kNormal);
}

TEST_F(CloseFaceTest, SpeaksTheLanguageOfThePack) {
    platform.tray.hasHost = false;
    frmMain->mnuL(0).UserClick();  // Arabic, the first by name
    CloseFace();
    EXPECT_THAT(Messages(), ElementsAre(Not(HasSubstr("notification"))));
}

TEST_F(CloseFaceTest, CloseBoxAndTheFacesCommandDoTheSame) {
    platform.tray.hasHost = false;
    frmMain->UserClose();
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    frmMain->SetWindowState(WindowState::kNormal);
    platform.face.onFSCommand("IDC_FS_close", "");
    EXPECT_EQ(frmMain->State(), WindowState::kMinimized);
    EXPECT_TRUE(frmMain->IsLoaded());
}

}  // namespace
}  // namespace horavex
