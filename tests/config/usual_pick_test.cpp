#include "config/usual_pick.h"

#include "config/automatic_zone.h"
#include "config/city_pick_test.h"
#include "config/settings_controls.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "config/wizard_preview.h"
#include "config/working_options.h"
#include "engine/day_driver.h"
#include "store/athan_options.h"
#include "store/distance_options.h"
#include "store/start_options.h"
#include "store/stored_values.h"

namespace horavex {
namespace {

using testing::IsEmpty;

struct UsualPickTest : CityPickTest {
    UsualPickTest() { AddZone("Europe/Oslo", kHour); }

    void GoToAngles() {
        while (wizard.currentPage < 4) {
            wizard.cmdNext.UserClick();
        }
    }

    void Finish() {
        GoToAngles();
        wizard.cmdNext.UserClick();
        EXPECT_THAT(platform.dialogs.messages, IsEmpty());
        EXPECT_EQ(CalcFailed, 0);
    }

    /// A pick by the settings window's own button, which opens the picker beside it.
    void PickInSettings(const std::string& city) {
        form.cmdChangeCity.UserClick();
        fCountry->txtSearch.UserType(city);
        fCountry->lstFound.UserSelect(0);
        fCountry->cmdOK.UserClick();
    }

    bool AnyOptionIsStored() {
        return platform.registry.OpenKey("Software\\Horavex\\Options", kRegistryRead) ==
               kRegistrySuccess;
    }
};

TEST_F(UsualPickTest, FirstRunsPickTakesTheMethodOfTheCountry) {
    Start();
    PickInWizard("new york");
    EXPECT_EQ(Settings.FajrAngle, 15.0);
    EXPECT_EQ(IshaAngle, 15.0);
    EXPECT_EQ(wizard.hsDepr.Value(), 15);
    EXPECT_EQ(form.hsDepr2.Value(), 15);
    EXPECT_EQ(wizard.cboMethod.Text(), "Islamic Society of North America (15°/15°)");
    EXPECT_EQ(wizard.lblUsual.Caption(),
              "Usual in United States: Islamic Society of North America");
    EXPECT_EQ(wizard.lblDepr.Caption(), "degrees 15");
    EXPECT_TRUE(wizard.lblHijri.Visible());
    EXPECT_TRUE(wizard.lblRuleMiddle.Visible());
    EXPECT_FALSE(wizard.lblRuleSeventh.Visible());
    EXPECT_FALSE(AnyOptionIsStored());
}

TEST_F(UsualPickTest, FirstRunProposesAnAthanThatEndsByItself) {
    Start();
    PickInWizard("new york");
    EXPECT_TRUE(wizard.chkCalmAthan.Visible());
    EXPECT_EQ(ReadOption(option::kSilentMinutes), 0) << "until it is accepted";
    Finish();
    EXPECT_EQ(ReadOption(option::kSilentMinutes), 10);
    EXPECT_EQ(ReadOption(option::kAthanOnce), 1);
    EXPECT_EQ(ReadOption(option::kAlarm), 0);
}

TEST_F(UsualPickTest, FirstRunHasASecondStartBringTheFaceBack) {
    Start();
    PickInWizard("new york");
    EXPECT_EQ(ReadOption(option::kShowRunning), 0) << "until it is accepted";
    Finish();
    EXPECT_EQ(ReadOption(option::kShowRunning), 1);
    EXPECT_EQ(ReadOption(option::kDistanceFromHere), 1);
}

TEST_F(UsualPickTest, UntickedTheBoxOfAFirstRunChangesNothing) {
    Start();
    PickInWizard("new york");
    wizard.chkCalmAthan.UserClick();
    Finish();
    EXPECT_EQ(ReadOption(option::kSilentMinutes), 0);
    EXPECT_EQ(ReadOption(option::kAthanOnce), 0);
    EXPECT_EQ(ReadOption(option::kAlarm), 1);
}

TEST_F(UsualPickTest, LaterWizardLeavesTheAthanAlone) {
    StartAgain();
    ShowWizard();
    EXPECT_FALSE(wizard.chkCalmAthan.Visible());
    Finish();
    EXPECT_EQ(ReadOption(option::kAlarm), 1);
    EXPECT_EQ(ReadOption(option::kShowRunning), 0);
}

TEST_F(UsualPickTest, FinishStoresAllOfThem) {
    Start();
    PickInWizard("riyadh");
    EXPECT_EQ(wizard.lblInterval.Caption(), "Isha 90 minutes after Maghrib");
    EXPECT_FALSE(wizard.hsDepr2.Enabled());
    Finish();
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.5);
    const YearOptions stored = ReadRuleOptions();
    EXPECT_EQ(stored.ishaInterval, 90);
    EXPECT_EQ(stored.ishaIntervalRamadan, 120);
    EXPECT_EQ(stored.highLatitude, HighLatitudeRule::kMiddle);
    EXPECT_EQ(stored.hijri, HijriSource::kUmmAlQura);
    EXPECT_TRUE(stored.sunOfTheDay);
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_EQ(ShownDay.moments[kIsha].by, MomentBy::kInterval);
}

TEST_F(UsualPickTest, CityThatIsSetAlreadyCountsAsAPick) {
    Start();
    PickInWizard("mecca");
    EXPECT_EQ(Settings.FajrAngle, 18.5);
    EXPECT_EQ(WorkingRules().ishaInterval, 90);
}

TEST_F(UsualPickTest, AnglesBetweenTheQuartersCountAsTheyAre) {
    AddZone("Asia/Tehran", 3 * kHour + 1800);
    Start();
    PickInWizard("tehran");
    Finish();
    EXPECT_EQ(ActiveSettings.FajrAngle, 17.7);
    EXPECT_EQ(ReadRuleOptions().maghribAngle, 4.5);
    ShowWizard();
    EXPECT_EQ(Settings.FajrAngle, 17.7);
    EXPECT_EQ(wizard.lblDepr.Caption(), "degrees 17.7");
}

TEST_F(UsualPickTest, ConventionOfTheListTakesThePlaceOfTheWholeMethod) {
    Start();
    PickInWizard("riyadh");
    GoToAngles();
    wizard.cboMethod.UserSelect(2);
    EXPECT_EQ(Settings.FajrAngle, 19.5);
    EXPECT_EQ(IshaAngle, 17.5);
    EXPECT_EQ(WorkingRules().ishaInterval, 0);
    EXPECT_FALSE(wizard.lblInterval.Visible());
    EXPECT_TRUE(wizard.hsDepr2.Enabled());
    EXPECT_EQ(WorkingRule(), HighLatitudeRule::kMiddle) << "which is no part of a method";
}

TEST_F(UsualPickTest, ConventionWhoseMarginsDoNotCountIsNotTheOneInForce) {
    AddZone("Europe/Istanbul", 3 * kHour);
    Start();
    PickInWizard("istanbul");
    GoToAngles();
    EXPECT_EQ(wizard.cboMethod.ListIndex(), 0) << "the angles alone are those of another";
    Finish();
    const auto margins = ReadRuleOptions().offsets;
    EXPECT_NE(margins[kMaghrib], 0);
    frmMain->mnumSettings.UserClick();
    EXPECT_EQ(form.cboMethod.ListIndex(), 0);
    form.cboMethod.UserSelect(1);
    EXPECT_EQ(form.cboMethod.ListIndex(), 1);
    EXPECT_EQ(ReadRuleOptions().offsets, margins) << "until it is set";
    form.SettingsSet.UserClick();
    EXPECT_EQ(ReadRuleOptions().offsets, YearOptions().offsets);
}

TEST_F(UsualPickTest, UnderAnIntervalTheSettingsWindowLeavesTheAngleOfIshaAlone) {
    Start();
    PickInWizard("riyadh");
    Finish();
    frmMain->mnumSettings.UserClick();
    EXPECT_FALSE(form.hsDepr2.Enabled());
    EXPECT_FALSE(form.hsDepr21.Enabled());
    form.cboMethod.UserSelect(2);
    EXPECT_TRUE(form.hsDepr2.Enabled());
    EXPECT_EQ(WorkingRules().ishaInterval, 0);
}

TEST_F(UsualPickTest, SchoolOfAsrComesWithTheCountryAndGoesWithIt) {
    Start();
    PickInWizard("karachi");
    EXPECT_EQ(Settings.AsrRatio, 2.0);
    EXPECT_TRUE(wizard.optAsrRatio(2).Value());
    PickInWizard("new york");
    EXPECT_EQ(Settings.AsrRatio, 1.0);
    EXPECT_TRUE(form.optAsrRatio(1).Value());
}

TEST_F(UsualPickTest, EgyptsAuthorityStandsInThePlaceOfTheFixedPair) {
    Start();
    PickInWizard("cairo");
    EXPECT_EQ(Settings.FajrAngle, 19.5);
    EXPECT_EQ(IshaAngle, 17.5);
}

TEST_F(UsualPickTest, NorthernCityTakesASeventhAndASummerWithoutTwilight) {
    SetClock(2026, 6, 21, 12, 0, 0);
    Start();
    PickInWizard("oslo");
    EXPECT_TRUE(wizard.lblRuleSeventh.Visible());
    EXPECT_EQ(wizard.hsDepr.Min(), 4);
    EXPECT_EQ(wizard.hsDepr.Max(), 20);
    EXPECT_EQ(wizard.lblDeprMax.Caption(), "20");
    EXPECT_EQ(wizard.hsDepr.Value(), 18);
    EXPECT_EQ(wizard.lblTime(kIsha).Caption(), "10:28 PM †");
    EXPECT_TRUE(wizard.lblTimeNote.Visible());
    EXPECT_TRUE(wizard.lblTimeTodayNote.Visible());
    Finish();
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
    EXPECT_EQ(ShownDay.moments[kIsha].by, MomentBy::kRule);
}

TEST_F(UsualPickTest, MomentBeyondMidnightIsShownWithItsDay) {
    AddZone("Europe/Oslo", 2 * kHour);
    SetClock(2026, 6, 21, 12, 0, 0);
    Start();
    PickInWizard("oslo");
    YearOptions options = WorkingRules();
    options.highLatitude = HighLatitudeRule::kMiddle;
    ChooseOptions(options);
    SetTodayPrayerTimes();
    EXPECT_EQ(wizard.lblTime(kIsha).Caption(), "01:18 AM, next day †");
    EXPECT_EQ(wizard.lblTimeToday(kIsha).Caption(), "01:18 AM+1†");
    EXPECT_EQ(wizard.lblTime(kZuhr).Caption(), "01:18 PM");
}

TEST_F(UsualPickTest, CountryWithoutAKnownMethodSaysSo) {
    Start();
    PickInWizard("sao paulo");
    EXPECT_FALSE(wizard.lblUsual.Visible());
    EXPECT_EQ(wizard.lblNoUsual.Caption(), "No usual method is known for Brazil");
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(IshaAngle, 17.0);
}

TEST_F(UsualPickTest, CancelLeavesNothingChosenAndNothingTicked) {
    Start();
    PickInWizard("riyadh");
    wizard.Command3.UserClick();
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_FALSE(AutomaticZoneIsOn());
    EXPECT_FALSE(AnyOptionIsStored());
    EXPECT_LT(form.hsDepr.Max(), 21);
    form.SettingsSet.UserClick();
    EXPECT_FALSE(AnyOptionIsStored()) << "the settings window knows nothing of them";
}

TEST_F(UsualPickTest, CancelledWizardThatComesUpAgainProposesForThePickedCity) {
    Start();
    PickInWizard("riyadh");
    wizard.Command3.UserClick();
    ShowWizard();
    EXPECT_EQ(wizard.chkAutomaticZone.Value(), 1);
    EXPECT_EQ(WorkingRules().ishaInterval, 90);
    EXPECT_EQ(WorkingRules().hijri, HijriSource::kUmmAlQura);
}

TEST_F(UsualPickTest, CancelLeavesTheChoicesOfTheSettingsWindow) {
    Start();
    PickInWizard("new york");
    Finish();
    PickInSettings("riyadh");
    ASSERT_EQ(WorkingRules().ishaInterval, 90);
    ASSERT_EQ(form.chkAutomaticZone.Value(), 1);
    ShowWizard();
    wizard.Command3.UserClick();
    EXPECT_EQ(WorkingRules().ishaInterval, 90);
    EXPECT_EQ(form.chkAutomaticZone.Value(), 1);
}

TEST_F(UsualPickTest, CityThatStandsThereIsAsGoodAsPickedWhereTheComputerKeepsItsZone) {
    platform.whereabouts.zoneNames = {"Asia/Riyadh"};
    Start();
    EXPECT_EQ(WorkingRules().ishaInterval, 90);
    Finish();
    EXPECT_EQ(ReadRuleOptions().ishaInterval, 90);
}

TEST_F(UsualPickTest, ElsewhereNothingIsProposedWithoutAPick) {
    platform.whereabouts.zoneNames = {"Europe/London"};
    Start();
    EXPECT_FALSE(OptionsAreChosen());
}

TEST_F(UsualPickTest, LaterCityLeavesTheSchoolOfAsr) {
    Start();
    PickInWizard("karachi");
    Finish();
    form.optAsrRatio(1).UserClick();
    form.SettingsSet.UserClick();
    PickInSettings("lahore");
    EXPECT_EQ(Settings.AsrRatio, 1.0);
}

TEST_F(UsualPickTest, CloseBoxCancelsToo) {
    Start();
    PickInWizard("oslo");
    wizard.UserClose();
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_FALSE(AutomaticZoneIsOn());
    EXPECT_LT(form.hsDepr.Max(), 18) << "the band of the latitude again";
}

TEST_F(UsualPickTest, RefusedFinishKeepsTheChoicesForAnotherTry) {
    Start();
    PickInWizard("riyadh");
    GoToAngles();
    Settings.DstEnabled = 1;
    Settings.DstStart = 1;
    Settings.DstEnd = 900;  // no day of the year
    wizard.cmdNext.UserClick();
    EXPECT_NE(CalcFailed, 0);
    EXPECT_EQ(ReadRuleOptions(), YearOptions());
    EXPECT_TRUE(OptionsAreChosen());
}

TEST_F(UsualPickTest, WhoeverHadSettingsKeepsTheBaseBehaviour) {
    StartAgain();
    ShowWizard();
    PickInWizard("new york");
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_FALSE(wizard.lblRuleMiddle.Visible());
    EXPECT_FALSE(wizard.lblHijri.Visible());
}

TEST_F(UsualPickTest, LaterPickGoesOnWithWhatIsUsual) {
    Start();
    PickInWizard("new york");
    Finish();
    PickInSettings("oslo");
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(form.hsDepr.Max(), 20);
    EXPECT_EQ(WorkingRule(), HighLatitudeRule::kSeventh);
    form.SettingsSet.UserClick();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(ReadRuleOptions().highLatitude, HighLatitudeRule::kSeventh);
    EXPECT_EQ(ActiveIshaAngle, 17.0);
}

TEST_F(UsualPickTest, LaterPickLeavesTheHijriCalendarAlone) {
    Start();
    PickInWizard("new york");
    Finish();
    SaveOption(option::kHijriCalendar, HijriSource::kArithmetic);
    SaveOption(option::kHijriAdjustment, 1);
    PickInSettings("oslo");
    EXPECT_EQ(WorkingRules().hijri, HijriSource::kArithmetic);
    EXPECT_EQ(WorkingRules().hijriAdjustment, 1);
}

TEST_F(UsualPickTest, WhoeverChoseOtherwiseKeepsIt) {
    Start();
    PickInWizard("new york");
    Finish();
    SaveOption(option::kOffsets[kFajr], 3);
    ShowWizard();
    PickInWizard("oslo");
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_EQ(WorkingRules().offsets[kFajr], 3);
}

TEST_F(UsualPickTest, ClosedSettingsWindowForgetsThePick) {
    Start();
    PickInWizard("new york");
    Finish();
    PickInSettings("oslo");
    form.UserClose();
    EXPECT_FALSE(OptionsAreChosen());
    EXPECT_EQ(WorkingRule(), HighLatitudeRule::kMiddle);
}

// Today's times, before anything is accepted.

struct PreviewTest : UsualPickTest, testing::WithParamInterface<const char*> {};

TEST_P(PreviewTest, FirstPageHasTheTimesThatTheFaceHasBehindTheFinish) {
    Start();
    PickInWizard(GetParam());
    std::vector<std::string> preview;
    for (int prayer = 0; prayer < 6; ++prayer) {
        preview.push_back(wizard.lblTime(prayer).Caption());
    }
    Finish();
    for (int prayer = 0; prayer < 6; ++prayer) {
        EXPECT_EQ(preview.at(static_cast<std::size_t>(prayer)), frmMain->lblTime(prayer).Caption());
    }
}

INSTANTIATE_TEST_SUITE_P(Cities, PreviewTest,
                         testing::Values("riyadh", "karachi", "oslo", "new york"));

TEST_F(UsualPickTest, PreviewShowsNoTimeThatDoesNotCome) {
    AddZone("Arctic/Longyearbyen", kHour);
    SetClock(2026, 6, 21, 12, 0, 0);
    StartAgain();
    ShowWizard();
    PickInWizard("longyearbyen");
    form.txtTimeZone.SetText("1");
    Settings.TimeZone = 1.0;
    wizard.cmdNext.UserClick();
    EXPECT_EQ(wizard.lblTimeToday(kShurooq).Caption(), "");
    EXPECT_EQ(wizard.lblTimeToday(kMaghrib).Caption(), "");
}

TEST_F(UsualPickTest, FirstPageTellsPlaceAndZone) {
    Start();
    EXPECT_EQ(wizard.lblPlace.Caption(), "Mecca: Asia/Riyadh, UTC+3");
    EXPECT_TRUE(wizard.fraToday.Visible());
    PickInWizard("new york");
    EXPECT_EQ(wizard.lblPlace.Caption(), "New York City: America/New_York, UTC-5");
    wizard.chkAutomaticZone.UserClick();
    EXPECT_EQ(wizard.lblPlace.Caption(), "New York City: UTC-5");
}

}  // namespace
}  // namespace horavex
