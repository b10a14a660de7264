#include "config/settings_window.h"

#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "engine/current_year.h"
#include "engine/year_table.h"
#include "geo/city_picker.h"
#include "geo/qibla.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/stored_values.h"
#include "support/program_test.h"

namespace horavex {
namespace {

struct SettingsWindowTest : ProgramTest {
    SettingsWindowTest() { StartAgain(); }

    SettingsRecord StoredRecord(const std::string& file) {
        const Bytes bytes = platform.folder.ReadWhole(file);
        SettingsBytes record{};
        std::copy_n(bytes.begin(), record.size(), record.begin());
        return DecodeSettings(record);
    }

    void TypeZone(const std::string& text) {
        ShowSettingsWindow();
        HoravexMainForm->txtTimeZone.UserType(text);
    }

    SettingsForm& form = *HoravexMainForm;
};

TEST_F(SettingsWindowTest, LoadShowsTheAcceptedState) {
    EXPECT_EQ(form.lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    EXPECT_EQ(form.lblLocationLat.Caption(), "Latitude: 21 degrees, 26 minutes North");
    EXPECT_EQ(form.lblTimeZone.Caption(), "Time Zone ( 2, 3, ...)");
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_TRUE(form.optAthanType(kSoundAthan).Value());
    EXPECT_TRUE(form.optQiblaMethod(1).Value());
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.hsDepr.Min(), 5);
    EXPECT_EQ(form.hsDepr.Max(), 20);
    EXPECT_EQ(form.lblDeprMin.Caption(), "5");
    EXPECT_EQ(form.Label6.Caption(), "20");
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 18");
    EXPECT_EQ(form.lblAlarm.Caption(), "06:30 AM");
    EXPECT_EQ(form.hsBegin.Max(), 364);
    EXPECT_EQ(form.hsBegin.LargeStep(), 30);
}

TEST_F(SettingsWindowTest, LoadTakesPlaceAndSettingsFromTheAcceptedState) {
    Settings = {};
    Location = {};
    Settings_Form_Load();
    EXPECT_EQ(Settings, ActiveSettings);
    EXPECT_EQ(Location.Country, "Saudi Arabia");
    EXPECT_EQ(Location.City.Name, "Mecca");
}

TEST_F(SettingsWindowTest, LoadForgetsACancelledList) {
    CancelLoad = -1;
    Settings_Form_Load();
    EXPECT_EQ(CancelLoad, 0);
}

TEST_F(SettingsWindowTest, LoadTakesTheYearOfNow) {
    SetClock(2028, 6, 1, 12, 0, 0);
    Settings_Form_Load();
    EXPECT_EQ(CurrentYear, 2028);
    EXPECT_EQ(LeapFlag, 1);
    EXPECT_EQ(form.hsEnd.Max(), 365);
}

TEST_F(SettingsWindowTest, LoadShowsTheZoneWithItsSign) {
    ActiveSettings.TimeZone = -4.5;
    SaveActiveSettings();
    Settings = ActiveSettings;
    SaveWorkingSettings();
    Settings_Form_Load();
    EXPECT_EQ(form.txtTimeZone.Text(), "-4.50");
    ActiveSettings.TimeZone = 0.0;
    Settings_Form_Load();
    EXPECT_EQ(form.txtTimeZone.Text(), "+0.00");
}

TEST_F(SettingsWindowTest, LimitsOfTheLatitudeSetBothAnglesAndTheirLabels) {
    SetDepressionLimits(-5200);
    for (const ScrollBar* bar : {&form.hsDepr, &form.hsDepr2}) {
        EXPECT_EQ(bar->Min(), AngleBand.smallest);
        EXPECT_EQ(bar->Max(), AngleBand.largest);
    }
    EXPECT_LT(AngleBand.largest, 20);
    for (const Label* label : {&form.lblDeprMin, &form.Label7}) {
        EXPECT_EQ(label->Caption(), std::to_string(AngleBand.smallest));
    }
    for (const Label* label : {&form.lblDeprMax, &form.Label6}) {
        EXPECT_EQ(label->Caption(), std::to_string(AngleBand.largest));
    }
}

TEST_F(SettingsWindowTest, ControlsWriteStraightIntoTheWorkingRecord) {
    form.hsDepr.UserSlide(17);
    form.hsDepr1.UserSlide(3);
    EXPECT_EQ(Settings.FajrAngle, 17.75);
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 17.75");
    form.hsDepr2.UserDrag(15);
    EXPECT_EQ(IshaAngle, 15.0) << "the display follows the thumb";
    form.hsAlarm.UserSlide(287);
    EXPECT_EQ(Settings.AlarmTime, 287);
    EXPECT_EQ(form.lblAlarm.Caption(), "11:55 PM");
    form.optAsrRatio(2).UserClick();
    EXPECT_EQ(Settings.AsrRatio, 2.0);
    form.optAthanType(kMuteAthan).UserClick();
    EXPECT_EQ(Settings.AthanType, kMuteAthan);
    EXPECT_EQ(ActiveSettings.AthanType, kSoundAthan);
}

TEST_F(SettingsWindowTest, QuartersSplitAndAdd) {
    ActiveSettings.FajrAngle = 18.75;
    Settings_Form_Load();
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.hsDepr1.Value(), 3);
    form.hsDepr1.UserSlide(4);
    EXPECT_EQ(Settings.FajrAngle, 19.0);
    EXPECT_EQ(form.hsDepr.Value(), 18);
}

TEST_F(SettingsWindowTest, AngleBetweenQuartersIsShownAtTheNearestOne) {
    ActiveSettings.FajrAngle = 18.7;
    Settings_Form_Load();
    EXPECT_EQ(form.hsDepr1.Value(), 3);
    EXPECT_EQ(Settings.FajrAngle, 18.7);
    ActiveSettings.FajrAngle = 18.625;  // two and a half quarters
    Settings_Form_Load();
    EXPECT_EQ(form.hsDepr1.Value(), 2);
}

TEST_F(SettingsWindowTest, DegreeAboveTheBandIsItsEndAndFourQuarters) {
    ActiveSettings.FajrAngle = 21.0;
    IshaAngle = 21.0;
    Settings_Form_Load();
    EXPECT_EQ(form.hsDepr.Value(), 20);
    EXPECT_EQ(form.hsDepr1.Value(), 4);
    EXPECT_EQ(form.hsDepr2.Value(), 20);
    EXPECT_EQ(form.hsDepr21.Value(), 4);
    EXPECT_EQ(IshaAngle, 21.0);
}

TEST_F(SettingsWindowTest, RatioBetweenTheOptionsIsShownAtTheNearestOne) {
    for (const auto& [ratio, option] : {std::pair(1.6, 2), std::pair(1.4, 1), std::pair(2.5, 2)}) {
        Settings.AsrRatio = ratio;
        sub0651();
        EXPECT_TRUE(form.optAsrRatio(option).Value()) << ratio;
    }
}

TEST_F(SettingsWindowTest, ClippedSliderLeavesTheSavedAngle) {
    ActiveSettings.FajrAngle = 25.5;
    Settings_Form_Load();
    EXPECT_EQ(form.hsDepr.Value(), 20);
    EXPECT_EQ(Settings.FajrAngle, 25.5);
    form.hsDepr1.UserSlide(0);
    EXPECT_EQ(Settings.FajrAngle, 20.0);
}

TEST_F(SettingsWindowTest, LastDayOfALeapYear) {
    SetClock(2028, 6, 1, 12, 0, 0);
    Settings_Form_Load();
    form.chkDayLT.UserClick();
    form.hsBegin.UserSlide(9999);
    EXPECT_EQ(Settings.DstStart, 366);
    EXPECT_EQ(form.lblBegin.Caption(), "Sunday, December 31, 2028");
}

TEST_F(SettingsWindowTest, DaylightBoxEnablesItsControls) {
    EXPECT_FALSE(form.hsBegin.Enabled());
    form.chkDayLT.UserClick();
    EXPECT_EQ(Settings.DstEnabled, 1);
    for (const Control* control :
         std::initializer_list<const Control*>{&form.hsBegin, &form.lblBeginAt, &form.lblBegin,
                                               &form.hsEnd, &form.lblEndAT, &form.lblEnd}) {
        EXPECT_TRUE(control->Enabled()) << control->Name();
    }
}

TEST_F(SettingsWindowTest, AlarmBoxEnablesItsControls) {
    form.chkAlarm.UserClick();
    EXPECT_EQ(Settings.AlarmEnabled, 0);
    EXPECT_FALSE(form.hsAlarm.Enabled());
    EXPECT_FALSE(form.lblAlarm.Enabled());
}

TEST_F(SettingsWindowTest, LanguageListSpeaksAtOnce) {
    form.lstLanguage.UserSelect(2);
    EXPECT_EQ(Settings.Language, 3);
    EXPECT_EQ(form.HelpContextId(), 3200);
    EXPECT_EQ(form.lblDepr.Caption(), "Grad 18");
    EXPECT_EQ(ActiveSettings.Language, 1);
}

TEST_F(SettingsWindowTest, ZoneBoxThrowsOutWhatIsNoZone) {
    TypeZone("-");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    TypeZone("13");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    TypeZone("12.5");  // rounds to the even 12
    EXPECT_EQ(form.txtTimeZone.Text(), "12.5");
    TypeZone("-12.5");
    EXPECT_EQ(form.txtTimeZone.Text(), "-12.5");
    for (const char* zone : {"12.6", "-12.6"}) {  // round to 13
        TypeZone(zone);
        EXPECT_EQ(form.txtTimeZone.Text(), "+3.00") << zone;
    }
    TypeZone("99999999");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
}

TEST_F(SettingsWindowTest, ZoneBeyondAllNumbersIsToldLikeAnyOther) {
    TypeZone("1e400");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.00");
    form.txtTimeZone.SetText("1e400");
    form.SettingsSet.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_THAT(platform.dialogs.messages[0].text,
                testing::StartsWith("Please check the Time Zone"));
}

TEST_F(SettingsWindowTest, ZoneTextEnablesTheSetButton) {
    form.SettingsSet.SetEnabled(false);
    form.txtTimeZone.SetText("  ");
    EXPECT_FALSE(form.SettingsSet.Enabled());
    form.txtTimeZone.SetText("4");
    EXPECT_TRUE(form.SettingsSet.Enabled());
}

TEST_F(SettingsWindowTest, DefaultsLeaveIshaAndLanguage) {
    IshaAngle = 12.0;
    Settings.FajrAngle = 10.0;
    form.cmdDefault.UserClick();
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(IshaAngle, 12.0);
    EXPECT_EQ(Settings.DstEnabled, 1);
    EXPECT_EQ(Settings.DstStart, 94);
    EXPECT_EQ(Settings.DstEnd, 297);
    EXPECT_EQ(form.txtTimeZone.Text(), "3");
    EXPECT_EQ(form.hsBegin.Value(), 93);
}

TEST_F(SettingsWindowTest, DefaultsAreShownInEveryControl) {
    form.hsDepr.UserSlide(10);
    form.hsDepr1.UserSlide(2);
    form.optAsrRatio(2).UserClick();
    form.optAthanType(kMuteAthan).UserClick();
    form.optQiblaMethod(2).UserClick();
    form.chkAlarm.UserClick();
    form.hsAlarm.UserSlide(5);
    form.hsBegin.SetValue(5);
    form.hsEnd.SetValue(6);
    form.cmdDefault.UserClick();
    EXPECT_EQ(form.hsDepr.Value(), 18);
    EXPECT_EQ(form.hsDepr1.Value(), 0);
    EXPECT_EQ(form.lblDepr.Caption(), "degrees 18");
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_TRUE(form.optAthanType(kSoundAthan).Value());
    EXPECT_TRUE(form.optQiblaMethod(1).Value());
    EXPECT_EQ(form.chkAlarm.Value(), 1);
    EXPECT_EQ(form.lblAlarm.Caption(), "06:30 AM");
    EXPECT_EQ(form.chkDayLT.Value(), 1);
    EXPECT_EQ(form.hsBegin.Value(), 93);
    EXPECT_EQ(form.hsEnd.Value(), 296);
    EXPECT_EQ(form.lblEnd.Caption(), "Saturday, October 24, 2026");
}

TEST_F(SettingsWindowTest, SetAcceptsAndStoresEverything) {
    ShowSettingsWindow();
    form.optAsrRatio(2).UserClick();
    form.hsDepr2.UserSlide(15);
    TypeZone("3.5");
    form.SettingsSet.UserClick();
    EXPECT_EQ(ActiveSettings.AsrRatio, 2.0);
    EXPECT_EQ(ActiveSettings.TimeZone, 3.5);
    EXPECT_EQ(StoredRecord("Dat/AI.DAT"), ActiveSettings);
    EXPECT_EQ(StoredRecord("Dat/Settings.DAT"), Settings);
    EXPECT_EQ(Stored("Isha Dep Angle"), "15");
    EXPECT_EQ(form.txtTimeZone.Text(), "+3.50");
    EXPECT_FALSE(form.Visible());
}

TEST_F(SettingsWindowTest, FailedYearAcceptsNothingButStoresTheWorkingValues) {
    const SettingsRecord accepted = ActiveSettings;
    form.hsDepr.SetMin(1);
    form.hsDepr.UserSlide(1);
    form.hsDepr2.UserSlide(14);
    form.optAsrRatio(2).UserClick();
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(StoredRecord("Dat/AI.DAT"), accepted);
    EXPECT_EQ(StoredRecord("Dat/Settings.DAT").FajrAngle, 1.0);
    EXPECT_EQ(Stored("Isha Dep Angle"), "14");
}

TEST_F(SettingsWindowTest, ReopeningAfterAFailureShowsTheFailedValuesButTheAngles) {
    form.hsDepr.SetMin(1);
    form.hsDepr.UserSlide(1);
    form.optAsrRatio(2).UserClick();
    form.SettingsSet.UserClick();
    Settings_Form_Load();
    EXPECT_TRUE(form.optAsrRatio(2).Value());
    EXPECT_EQ(Settings.AsrRatio, 2.0);
    EXPECT_EQ(Settings.FajrAngle, 18.0);
}

TEST_F(SettingsWindowTest, FailedYearShowsTheWindowAndTheCommitHidesItAgain) {
    form.hsDepr.SetMin(1);
    form.hsDepr.UserSlide(1);
    platform.desktop.calls.clear();
    form.SettingsSet.UserClick();
    EXPECT_THAT(platform.desktop.calls,
                testing::ElementsAre("load fMessage", "show fMessage", "unload fMessage",
                                     "show HoravexMainForm"));
    EXPECT_FALSE(form.Visible());
}

struct PlaceCommitTest : SettingsWindowTest {
    /// The next city of the list as the picker leaves it: chosen, not yet accepted.
    PlaceCommitTest() {
        Settings.CityIndex = static_cast<std::int16_t>(Settings.CityIndex + 1);
        CityText = LookupLocation(Settings.CityIndex, Location);
    }
};

TEST_F(PlaceCommitTest, AcceptedPlaceFollowsTheWorkingOne) {
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, 0);
    EXPECT_EQ(ActiveSettings.CityIndex, Settings.CityIndex);
    EXPECT_EQ(ActiveCityText, CityText);
    EXPECT_EQ(ActiveLocation.City.Name, Location.City.Name);
    EXPECT_EQ(form.lblCityBanner.Caption(), "City: " + CityText);
    EXPECT_TRUE(form.cmdQibla.Enabled());
}

TEST_F(PlaceCommitTest, FailedYearKeepsTheAcceptedPlace) {
    const std::string banner = form.lblCityBanner.Caption();
    form.hsDepr.SetMin(1);
    form.hsDepr.UserSlide(1);
    form.SettingsSet.UserClick();
    ASSERT_NE(CalcFailed, 0);
    EXPECT_EQ(ActiveCityText, "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(ActiveLocation.City.Name, "Mecca");
    EXPECT_EQ(form.lblCityBanner.Caption(), banner);
    EXPECT_FALSE(form.cmdQibla.Enabled());
}

TEST_F(SettingsWindowTest, CommitOfTheSamePlaceLeavesTheBanner) {
    const std::string banner = form.lblCityBanner.Caption();
    form.SettingsSet.UserClick();
    EXPECT_EQ(form.lblCityBanner.Caption(), banner);
}

TEST_F(SettingsWindowTest, CommitShowsTheQiblaOfTheAcceptedPlace) {
    form.lblQibla.SetCaption("");
    form.SettingsSet.UserClick();
    EXPECT_EQ(form.lblQibla.Caption(), QiblaText);
    EXPECT_NE(QiblaText, "");
}

TEST_F(SettingsWindowTest, RefusedZoneChangesNothing) {
    const SettingsRecord working = Settings;
    form.txtTimeZone.SetText("13");
    form.SettingsSet.UserClick();
    EXPECT_EQ(Settings, working);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
    EXPECT_THAT(platform.desktop.calls, testing::IsEmpty());
}

class ZoneBound : public SettingsWindowTest,
                  public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(ZoneBound, CommitTakesFromMinusTwelveToTwelve) {
    form.txtTimeZone.SetText(GetParam().first);
    const Bytes before = platform.folder.ReadWhole("Dat/Settings.DAT");
    ShowSettingsWindow();
    SettingsSet_Click();
    EXPECT_EQ(platform.dialogs.messages.empty() || CalcFailed != 0, GetParam().second);
    if (!GetParam().second) {
        EXPECT_EQ(platform.dialogs.messages.back().text,
                  "Please check the Time Zone. The nearest zone of this place is 3");
        EXPECT_TRUE(form.txtTimeZone.HasFocus());
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(platform.folder.ReadWhole("Dat/Settings.DAT"), before);
    }
}

INSTANTIATE_TEST_SUITE_P(Zones, ZoneBound,
                         testing::Values(std::pair("12", true), std::pair("-12", true),
                                         std::pair("12.01", false), std::pair("-12.01", false),
                                         std::pair("", false), std::pair("abc", false)));

TEST_F(SettingsWindowTest, LanguageChangeSetsTheHelpTopic) {
    form.lstLanguage.UserSelect(1);
    form.SettingsSet.UserClick();
    EXPECT_EQ(form.HelpContextId(), 2000);
    EXPECT_EQ(ActiveSettings.Language, 2);
}

TEST_F(SettingsWindowTest, QiblaIsNotOfferedInMecca) {
    EXPECT_FALSE(form.cmdQibla.Enabled());
    Settings.CityIndex = 0;
    CityText = LookupLocation(0, Location);
    form.txtTimeZone.SetText("0");
    Settings.TimeZone = 0;
    SettingsSet_Click();
    EXPECT_EQ(form.cmdQibla.Enabled(), CalcFailed == 0);
}

TEST_F(SettingsWindowTest, AthanButtonFollowsTheAcceptedType) {
    EXPECT_TRUE(form.cmdAthan.Enabled());
    form.optAthanType(kBuzzerAthan).UserClick();
    EXPECT_TRUE(form.cmdAthan.Enabled());
    form.SettingsSet.UserClick();
    EXPECT_FALSE(form.cmdAthan.Enabled());
}

TEST_F(SettingsWindowTest, FailedFileStepsArePassedOver) {
    platform.failingFiles.FailCall(0);
    ShowSettingsWindow();
    form.optAsrRatio(2).UserClick();
    for (int call = 1; call <= 40; ++call) {
        platform.failingFiles.FailCall(call);
        EXPECT_NO_THROW(form.SettingsSet.UserClick());
        platform.failingFiles.FailCall(0);
        EXPECT_EQ(platform.folder.ReadWhole("Dat/AI.DAT").size(), 97U);
        EXPECT_EQ(platform.folder.ReadWhole("Dat/Settings.DAT").size(), 97U);
    }
}

TEST_F(SettingsWindowTest, CloseBoxBringsTheLanguageBack) {
    ShowSettingsWindow();
    form.lstLanguage.UserSelect(1);
    form.UserClose();
    EXPECT_EQ(Settings.Language, 1);
    EXPECT_EQ(form.lstLanguage.ListIndex(), 0);
    EXPECT_EQ(form.fraCity.Caption(), "Location");
}

TEST_F(SettingsWindowTest, CloseBoxThrowsEditsAway) {
    ShowSettingsWindow();
    form.optAsrRatio(2).UserClick();
    form.hsDepr2.UserSlide(11);
    form.UserClose();
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_EQ(Settings.AsrRatio, 1.0);
    EXPECT_EQ(IshaAngle, 18.0);
    EXPECT_TRUE(form.optAsrRatio(1).Value());
    EXPECT_EQ(form.hsDepr2.Value(), 18);
}

TEST_F(SettingsWindowTest, CloseBoxBetweenNewYearAndTheNextTickCalculatesTheYear) {
    const YearTimes former = Times;
    ShowSettingsWindow();
    SetClock(2027, 1, 1, 0, 0, 0);
    form.UserClose();
    EXPECT_EQ(CurrentYear, 2027);
    EXPECT_NE(Times, former) << "the tick takes the year for that of the table";
}

TEST_F(SettingsWindowTest, CloseFromCodeHidesItAndThrowsEditsAway) {
    ShowSettingsWindow();
    form.hsDepr2.UserSlide(11);
    form.Unload();
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_EQ(IshaAngle, 18.0);
}

TEST_F(SettingsWindowTest, CloseBoxTakesTheStoredIshaAngleAsItStands) {
    for (const char* stored : {"-1", "abc"}) {
        platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", stored);
        IshaAngle = 18.0;
        form.UserClose();
        EXPECT_EQ(IshaAngle, -1.0) << stored;
        EXPECT_EQ(form.lblDepr1.Caption(), "degrees -1");
        EXPECT_EQ(Stored("Isha Dep Angle"), stored) << "only a start writes a first angle";
    }
}

TEST_F(SettingsWindowTest, CloseBoxFindsNoAngleWhereNoneIsStored) {
    platform.registry.DeleteValue("Software\\Horavex\\Settings", "Isha Dep Angle");
    form.UserClose();
    EXPECT_EQ(IshaAngle, -1.0);
}

TEST_F(SettingsWindowTest, ComesUpWithTheWorkingRecordInEveryControl) {
    Settings.FajrAngle = 15.0;  // as a wizard has set them
    IshaAngle = 15.0;
    Settings.AsrRatio = 2.0;
    Settings.DstStart = 121;
    frmMain->mnumSettings.UserClick();
    EXPECT_EQ(form.hsDepr.Value(), 15);
    EXPECT_EQ(form.hsDepr2.Value(), 15);
    EXPECT_EQ(form.lblDepr1.Caption(), "degrees 15");
    EXPECT_EQ(form.cboMethod.Text(), "Islamic Society of North America (15°/15°)");
    EXPECT_TRUE(form.optAsrRatio(2).Value());
    EXPECT_EQ(form.hsBegin.Value(), 120);
}

TEST_F(SettingsWindowTest, ComesUpWithTheWorkingPlaceAndKeepsBothAngles) {
    const auto cities = ListCities();
    Settings.CityIndex = SearchCities(cities, "Tromsø").at(0).city->cityIndex;
    CityText = LookupLocation(Settings.CityIndex, Location);
    frmMain->mnumSettings.UserClick();
    EXPECT_EQ(form.lblCity.Caption(), CityText);
    EXPECT_THAT(form.lblLocationLat.Caption(), testing::HasSubstr("69 degrees"));
    EXPECT_LT(form.hsDepr.Max(), 18);
    EXPECT_EQ(Settings.FajrAngle, 18.0);
    EXPECT_EQ(IshaAngle, 18.0);
}

TEST_F(SettingsWindowTest, EntryOfTheMenuLeavesAnOpenWindowAsItIs) {
    ShowSettingsWindow();
    form.hsDepr1.UserSlide(4);
    frmMain->mnumSettings.UserClick();
    EXPECT_EQ(form.hsDepr1.Value(), 4);
}

// A stored record of another city.

TEST_F(SettingsWindowTest, StoredCityComesWithItsPlace) {
    const auto cities = ListCities();
    SettingsRecord refused = ActiveSettings;
    refused.CityIndex = SearchCities(cities, "Tromsø").at(0).city->cityIndex;
    Settings = refused;
    SaveWorkingSettings();
    form.UserClose();
    EXPECT_EQ(Settings.CityIndex, refused.CityIndex);
    EXPECT_EQ(Location.City.Name, "Tromsø");
    EXPECT_THAT(CityText, testing::HasSubstr("Norway"));
    EXPECT_EQ(form.lblCity.Caption(), "Mecca, Mecca - Saudi Arabia") << "nothing is accepted";
    form.txtTimeZone.SetText("1");
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1) << "its own coordinates count";
    EXPECT_EQ(ActiveSettings.CityIndex, kMeccaCityIndex);
}

TEST_F(SettingsWindowTest, StoredCityComesWithItsZone) {
    SettingsRecord refused = ActiveSettings;
    refused.CityIndex = SearchCities(ListCities(), "Tromsø").at(0).city->cityIndex;
    refused.TimeZone = 1.0;
    Settings = refused;
    SaveWorkingSettings();
    form.UserClose();
    EXPECT_EQ(form.txtTimeZone.Text(), "+1.00");
}

TEST_F(SettingsWindowTest, MinimisedWindowHides) {
    ShowSettingsWindow();
    form.SetWindowState(WindowState::kMinimized);
    EXPECT_FALSE(form.Visible());
    ShowSettingsWindow();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(form.State(), WindowState::kNormal);
}

TEST_F(SettingsWindowTest, MissingBandFileKeepsTheLimits) {
    const AngleLimits before = AngleBand;
    platform.files.Delete("/program/Dat/A.dat");
    SetDepressionLimits(5200);
    EXPECT_EQ(AngleBand, before);
    EXPECT_EQ(form.hsDepr.Max(), 20);
    EXPECT_FALSE(platform.folder.Exists("Dat/A.dat"));
}

}  // namespace
}  // namespace horavex
