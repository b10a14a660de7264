#include "shell/start.h"

#include "athan/athan_settings_window.h"
#include "base/program_state.h"
#include "config/wizard.h"
#include "engine/day_driver.h"
#include "lang/language_pack.h"
#include "store/start_options.h"
#include "support/program_test.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using StartTest = ProgramTest;

TEST_F(StartTest, FirstRunComesUpInItsFixedOrder) {
    Start();
    EXPECT_THAT(
        platform.desktop.calls,
        ElementsAre("load frmMain", "audio mode 2", "load HoravexMainForm",
                    "WriteStartupEntry ZORIT", "load fMessage", "show fMessage", "unload fMessage",
                    "TrayAdd Horavex", "Place -89 -67", "LoadMovie 0 \\\\skin\\skin.swf",
                    "show frmMain", "load frmWizard", "show frmWizard"));
    EXPECT_EQ(frmWizard->Owner(), &*frmMain);
    EXPECT_FALSE(frmWizard->IsModal());
}

TEST_F(StartTest, LaterRunsOpenNoWizard) {
    StartAgain();
    EXPECT_FALSE(frmWizard->IsLoaded());
}

TEST_F(StartTest, FirstRunStoresTheIshaAngleAndChoosesTheSound) {
    Start();
    EXPECT_EQ(firstRun, -1);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
    EXPECT_EQ(IshaAngle, 18.0);
    EXPECT_EQ(Settings.AthanType, kSoundAthan);
}

TEST_F(StartTest, StoredMinusOneIsAFirstRunAllTheSame) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", "-1");
    Start();
    EXPECT_EQ(firstRun, -1);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
}

TEST_F(StartTest, StoredAngleIsNoFirstRun) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", "17,75");
    Start();
    EXPECT_EQ(firstRun, 0);
    EXPECT_EQ(IshaAngle, 17.75);
}

TEST_F(StartTest, FreshInstallCalculatesMeccaAtOnce) {
    Start();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(frmMain->lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(frmMain->lblTime(kZuhr).Caption(), "12:06 PM");
    EXPECT_THAT(frmMain->lblQibla.Caption(), HasSubstr("Qibla: "));
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_FALSE(HoravexMainForm->Visible());
    EXPECT_TRUE(HoravexMainForm->IsLoaded());
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(StartTest, ClockRunsFromTheStart) {
    Start();
    EXPECT_TRUE(frmMain->tmrUpdate.Running());
}

TEST_F(StartTest, EndsWithTheLanguageOfTheUser) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Language", "Arabic");
    Start();
    EXPECT_EQ(currentLanguage, "Arabic");
    EXPECT_EQ(frmMain->lblZoritNameArabic(0).Caption(), "الفجر");
}

TEST_F(StartTest, StoredLanguageInCapitalsIsFoundAllTheSame) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Language", "ARABIC");
    Start();
    EXPECT_TRUE(frmMain->mnuL(0).Checked());
    EXPECT_EQ(frmMain->lblZoritNameArabic(0).Caption(), "الفجر");
}

TEST_F(StartTest, WithoutPacksTheFaceKeepsItsOwnTextsAndTheClockRuns) {
    for (const std::string& pack : platform.files.List("/program/lang")) {
        platform.files.Delete("/program/lang/" + pack);
    }
    Start();
    EXPECT_EQ(frmMain->mnuL(0).Caption(), "Not Available");
    EXPECT_EQ(frmMain->Label1.Caption(), "Next Athan:");
    EXPECT_EQ(platform.face.Value("_root.azan"), "");
    EXPECT_TRUE(frmMain->tmrUpdate.Running());
}

TEST_F(StartTest, FirstPassOfTheLanguageGivesTheFaceItsSixTexts) {
    Start();
    ASSERT_GE(platform.face.variables.size(), 6U);
    const std::vector<std::pair<std::string, std::string>> last(platform.face.variables.end() - 6,
                                                                platform.face.variables.end());
    EXPECT_THAT(
        last, ElementsAre(
                  testing::Pair("_root.azan", "Athan"), testing::Pair("_root.settings", "Settings"),
                  testing::Pair("_root.tools", "Tools"), testing::Pair("_root.help", "Help"),
                  testing::Pair("qibla", "Qibla"), testing::Pair("prayer_time", "Prayer Times")));
}

TEST_F(StartTest, SettingsWindowKeepsTheHelpTopicOfItsLanguage) {
    Start();
    EXPECT_EQ(HoravexMainForm->HelpContextId(), 1000);
}

TEST_F(StartTest, WindowsOfTheStartStandInTheMiddleOfTheScreen) {
    double left = 0.0;
    platform.loop.After(1.0, [&left] { left = fMessage->Left(); });
    Start();
    EXPECT_EQ(left, (platform.windows.screen.width - fMessage->Width()) / 2.0);
    EXPECT_EQ(frmMain->Left(), (platform.windows.screen.width - frmMain->Width()) / 2.0);
    EXPECT_EQ(frmMain->Top(), (platform.windows.screen.height - frmMain->Height()) / 2.0);
}

TEST_F(StartTest, FaceThatWasMovedComesUpAtItsOwnPlaceAtTheNextStart) {
    StartAgain();
    const double left = frmMain->Left();
    const double top = frmMain->Top();
    frmMain->SetLeft(15.0);
    frmMain->SetTop(30.0);
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
    frmMain->Unload(CloseReason::kSessionEnd);
    HoravexMainForm->Unload(CloseReason::kSessionEnd);
    Start();
    EXPECT_EQ(frmMain->Left(), left);
    EXPECT_EQ(frmMain->Top(), top);
}

TEST_F(StartTest, WithoutAStoredLanguageItIsEnglish) {
    Start();
    EXPECT_EQ(currentLanguage, "English");
}

TEST_F(StartTest, ProgressWindowStaysForThreeSeconds) {
    const double before = platform.clock.SteadySeconds();
    Start();
    EXPECT_NEAR(platform.clock.SteadySeconds() - before, 3.0, 0.02);
}

TEST_F(StartTest, FixedSpellingsStandInTheSettingsWindow) {
    Start();
    EXPECT_EQ(HoravexMainForm->lblZoritName(2).Caption(), "Thuhr");
    EXPECT_EQ(HoravexMainForm->lblZoritName(5).Caption(), "Ishaa");
}

TEST_F(StartTest, SecondInstanceEndsWithAMessageAndTouchesNothing) {
    platform.instanceGuard.anotherIsRunning = true;
    EXPECT_THROW(Start(), ProcessEnded);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "Horavex is already running.");
    EXPECT_EQ(platform.dialogs.messages[0].title, "Horavex");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kCritical);
    EXPECT_THAT(platform.desktop.calls, testing::Not(testing::Contains(HasSubstr("show"))));
    EXPECT_THAT(platform.desktop.calls, testing::Not(testing::Contains(HasSubstr("Tray"))));
}

TEST_F(StartTest, SecondInstanceAsksNobodyWithoutTheOption) {
    platform.instanceGuard.anotherIsRunning = true;
    platform.broadcast.runningAnswers = true;
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_THAT(platform.broadcast.signals, testing::IsEmpty());
}

TEST_F(StartTest, ByTheOptionASecondInstanceBringsTheFirstToTheFrontAndEndsSilently) {
    SaveOption(option::kShowRunning, 1);
    platform.instanceGuard.anotherIsRunning = true;
    platform.broadcast.runningAnswers = true;
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_THAT(platform.broadcast.signals, testing::ElementsAre("ShowRunning"));
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

TEST_F(StartTest, SecondInstanceThatNobodyAnswersEndsWithTheMessage) {
    SaveOption(option::kShowRunning, 1);
    platform.instanceGuard.anotherIsRunning = true;
    EXPECT_THROW(Start(), ProcessEnded);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "Horavex is already running.");
}

TEST_F(StartTest, WithoutSettingsTheSettingsWindowOpens) {
    platform.files.Delete("/program/Dat/AI.DAT");
    Start();
    EXPECT_TRUE(HoravexMainForm->Visible());
    EXPECT_EQ(HoravexMainForm->Owner(), &*frmMain);
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(StartTest, FailedYearOpensTheSettingsWindow) {
    LoadActiveSettings();
    ActiveSettings.FajrAngle = 1.0;  // a dawn of some four minutes
    SaveActiveSettings();
    StartAgain();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_TRUE(HoravexMainForm->Visible());
}

TEST_F(StartTest, ScratchFileOfTheUpdateGoes) {
    platform.files.WriteWhole("/program/Dat/update.txt", {});
    Start();
    EXPECT_FALSE(platform.files.Exists("/program/Dat/update.txt"));
}

TEST_F(StartTest, CustomSoundsAreRead) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Custom Athan File1", "/a/b.ogg");
    Start();
    EXPECT_EQ(CustomAthanFile(0), "");
    EXPECT_EQ(CustomAthanFile(1), "/a/b.ogg");
}

TEST_F(StartTest, MissingTablesFailTheStart) {
    platform.files.Delete("/program/Dat/TI.DAT");
    EXPECT_THROW(Start(), FileFault);
}

struct LanguageOfTheNextStart : ProgramTest {
    LanguageOfTheNextStart() { StartAgain(); }

    /// The entries stand in the order of the alphabet.
    static void ChooseArabic() { frmMain->mnuL(0).UserClick(); }

    void NextStart() {
        ResetProgramState();
        BindWindows();
        Start();
    }
};

TEST_F(LanguageOfTheNextStart, ChoiceSpeaksAtOnceAndInEveryWindowThatLoadsLater) {
    ChooseArabic();
    EXPECT_EQ(frmMain->mnuHelp.Caption(), "مساعدة");
    EXPECT_EQ(platform.face.Value("_root.help"), "مساعدة");
    fMessage->Load();
    EXPECT_EQ(fMessage->cmdAlarmClose.Caption(), "إغلاق");
}

TEST_F(LanguageOfTheNextStart, IsTheOneOfTheExit) {
    ChooseArabic();
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
    NextStart();
    EXPECT_EQ(currentLanguage, "Arabic");
    EXPECT_EQ(frmMain->mnuHelp.Caption(), "مساعدة");
}

TEST_F(LanguageOfTheNextStart, IsTheFormerOneIfTheSessionEnds) {
    ChooseArabic();
    frmMain->Unload(CloseReason::kSessionEnd);
    NextStart();
    EXPECT_EQ(currentLanguage, "English");
    EXPECT_EQ(frmMain->mnuHelp.Caption(), "Help");
}

TEST_F(LanguageOfTheNextStart, IsTheFormerOneAfterACrash) {
    ChooseArabic();
    NextStart();
    EXPECT_EQ(currentLanguage, "English");
}

using StopTest = ProgramTest;

TEST_F(StopTest, CloseBoxOfTheFaceHidesIt) {
    StartAgain();
    frmMain->UserClose();
    EXPECT_FALSE(frmMain->Visible());
    EXPECT_TRUE(frmMain->IsLoaded());
    EXPECT_TRUE(frmMain->tmrUpdate.Running());
    EXPECT_THAT(platform.desktop.calls, testing::IsEmpty());
}

TEST_F(StopTest, EndOfTheSessionUnloadsWithNothingSaved) {
    StartAgain();
    currentLanguage = "French";
    frmMain->Unload(CloseReason::kSessionEnd);
    EXPECT_FALSE(frmMain->IsLoaded());
    EXPECT_EQ(Stored("Language"), "");
    EXPECT_THAT(platform.desktop.calls, testing::Not(testing::Contains("TrayRemove")));
}

TEST_F(StopTest, ExitStoresTheLanguageThenRemovesTheIconThenEnds) {
    StartAgain();
    currentLanguage = "French";
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
    EXPECT_EQ(Stored("Language"), "French");
    EXPECT_THAT(platform.desktop.calls, ElementsAre("TrayRemove"));
}

TEST_F(StopTest, TraysExitIsTheSame) {
    StartAgain();
    EXPECT_THROW(frmMain->mnuPopExit.UserClick(), ProcessEnded);
    EXPECT_EQ(Stored("Language"), "English");
}

}  // namespace
}  // namespace horavex
