// What is left on view by a set that was refused, and what the user can do while one runs.

#include "athan/athan_state.h"
#include "base/int16.h"
#include "config/commit.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/solar_event.h"
#include "shell/tick.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "support/program_test.h"
#include "windows/f_country.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct FailedCommitTest : ProgramTest {
    /// Early in the year, so that today lies in the rows that a refused place has filled.
    FailedCommitTest() {
        SetClock(2026, 2, 10, 12, 0, 0);
        StartAgain();
        ShowSettingsWindow();
        accepted = ActiveSettings;
        acceptedTimes = Times;
    }

    static std::int16_t IndexOf(const std::string& text) {
        const auto cities = ListCities();
        return SearchCities(cities, text).at(0).city->cityIndex;
    }

    /// A place whose summer has no night.
    void PickTromso() {
        Settings.CityIndex = IndexOf("Tromsø");
        CityText = LookupLocation(Settings.CityIndex, Location);
        frmMain->lblCity.SetCaption(CityText);
        form.txtTimeZone.SetText("1");
    }

    /// Days of daylight saving that no window can show.
    void BreakDaylightDays() {
        Settings.DstEnabled = 1;
        Settings.DstStart = 0;
    }

    std::vector<std::string> ShownTimes() const {
        std::vector<std::string> times;
        for (int prayer = 0; prayer < 6; ++prayer) {
            times.push_back(frmMain->lblTime(prayer).Caption());
        }
        return times;
    }

    SettingsForm& form = *HoravexMainForm;
    SettingsRecord accepted;
    decltype(Times) acceptedTimes = {};
};

TEST_F(FailedCommitTest, AcceptedYearIsBackOnceTheFailureHasBeenTold) {
    const auto shown = ShownTimes();
    const auto today = TodayTimes;
    const double latitude = LatitudeRad;
    const double longitude = LongitudeWestRad;
    PickTromso();
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, -1);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(Times, acceptedTimes);
    EXPECT_EQ(TodayTimes, today);
    EXPECT_EQ(ShownTimes(), shown);
    EXPECT_EQ(LatitudeRad, latitude);
    EXPECT_EQ(LongitudeWestRad, longitude);
}

TEST_F(FailedCommitTest, RefusedYearIsOnViewBehindTheProgressWindow) {
    const auto shown = ShownTimes();
    PickTromso();
    std::vector<std::string> meanwhile;
    platform.loop.After(1.0, [&] { meanwhile = ShownTimes(); });
    form.SettingsSet.UserClick();
    EXPECT_NE(meanwhile, shown);
}

TEST_F(FailedCommitTest, FaceAndCityAreThoseOfTheAcceptedStateAgain) {
    ShowDay();
    const std::string prayers =
        platform.face.Value("_root.allPrayerTime.allPrayerTimeText.sAllPrayers");
    const std::string compass = platform.face.Value("_root.icompassAngle");
    ASSERT_NE(compass, "");
    PickTromso();
    form.SettingsSet.UserClick();
    EXPECT_EQ(platform.face.Value("_root.icompassAngle"), compass);
    EXPECT_EQ(platform.face.Value("_root.allPrayerTime.allPrayerTimeText.sAllPrayers"), prayers);
    EXPECT_EQ(frmMain->lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
}

TEST_F(FailedCommitTest, CloseBoxLeavesTheAcceptedTableAndCity) {
    PickTromso();
    form.SettingsSet.UserClick();
    ShowSettingsWindow();
    frmMain->lblCity.SetCaption("Tromsø");
    form.UserClose();
    ShowDay();
    EXPECT_EQ(Times, acceptedTimes);
    EXPECT_EQ(frmMain->lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(ActiveSettings, accepted);
}

TEST_F(FailedCommitTest, YearAcceptedLaterIsTheOneThatComesBack) {
    form.hsDepr.UserSlide(15);
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, 0);
    const auto second = Times;
    EXPECT_NE(second, acceptedTimes);
    PickTromso();
    form.SettingsSet.UserClick();
    EXPECT_EQ(Times, second);
}

TEST_F(FailedCommitTest, FaultInTheRunIsAFailureToldOnceAndAcceptsNothing) {
    BreakDaylightDays();
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_THAT(platform.dialogs.messages[0].text,
                testing::HasSubstr("Please check the daylight saving days"));
    EXPECT_FALSE(fMessage->IsLoaded());
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Times, acceptedTimes);
}

TEST_F(FailedCommitTest, ProgressWindowThatCannotSpeakAcceptsNothingEither) {
    form.hsDepr.UserSlide(15);
    platform.files.Delete("/program/Dat/T.DAT");
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_FALSE(fMessage->IsLoaded());
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Times, acceptedTimes);
}

// While it runs.

TEST_F(FailedCommitTest, WindowIsShutFromThePressToTheEndOfASet) {
    bool enabled = true;
    platform.loop.After(1.0, [&] {
        enabled = form.Enabled();
        form.hsDepr.UserSlide(15);
        form.SettingsSet.UserClick();
    });
    form.SettingsSet.UserClick();
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(ActiveSettings.FajrAngle, accepted.FajrAngle);
}

TEST_F(FailedCommitTest, WhatIsWrittenMeanwhileIsNotAcceptedUncalculated) {
    platform.loop.After(1.0, [&] {
        form.SetEnabled(true);  // as an athan does behind its sound
        form.hsDepr.UserSlide(15);
        form.hsDepr2.UserSlide(14);
    });
    form.SettingsSet.UserClick();
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Settings, accepted);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
}

TEST_F(FailedCommitTest, WindowIsOpenAgainAfterARefusedSet) {
    bool enabled = true;
    PickTromso();
    platform.loop.After(1.0, [&] { enabled = form.Enabled(); });
    form.SettingsSet.UserClick();
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(form.Enabled());
}

TEST_F(FailedCommitTest, RefusedZoneLeavesTheWindowOpenToTheUser) {
    form.txtTimeZone.SetText("13");
    form.SettingsSet.UserClick();
    EXPECT_TRUE(form.Enabled());
}

TEST_F(FailedCommitTest, CloseBoxWaitsForTheEndOfTheSet) {
    form.hsDepr.UserSlide(15);
    bool stayed = false;
    platform.loop.After(1.0, [&] {
        form.UserClose();
        stayed = form.Visible() && Settings.FajrAngle == 15.0;
    });
    form.SettingsSet.UserClick();
    EXPECT_TRUE(stayed);
    EXPECT_EQ(ActiveSettings.FajrAngle, 15.0);
}

TEST_F(FailedCommitTest, WizardAndPickerAreShutMeanwhileToo) {
    ShowWizard();
    fCountry->Load();
    bool wizard = true;
    bool picker = true;
    platform.loop.After(1.0, [&] {
        wizard = frmWizard->Enabled();
        picker = fCountry->Enabled();
    });
    form.SettingsSet.UserClick();
    EXPECT_FALSE(wizard);
    EXPECT_FALSE(picker);
    EXPECT_TRUE(frmWizard->Enabled());
    EXPECT_TRUE(fCountry->Enabled());
}

TEST_F(FailedCommitTest, WizardDoesNotComeUpMeanwhile) {
    platform.loop.After(1.0, [] { ShowWizard(); });
    form.SettingsSet.UserClick();
    EXPECT_FALSE(frmWizard->IsLoaded());
    EXPECT_EQ(ActiveSettings, accepted) << "it writes days of daylight saving as it loads";
}

// The set action of the clock.

struct SetByClockTest : FailedCommitTest {
    /// The second midnight from now.
    void PassTwoDays() {
        platform.clock.Set(platform.clock.Today() + 2.0);
        ShowDay();
    }

    void CloseSettings() { form.Hide(); }
};

TEST_F(SetByClockTest, EditsOfAnOpenWindowStayEdits) {
    form.hsDepr.UserSlide(15);
    form.hsDepr2.UserSlide(14);
    form.optAsrRatio(2).UserClick();
    form.txtTimeZone.UserType("4");
    const SettingsRecord edited = Settings;
    PassTwoDays();
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Settings, edited);
    EXPECT_EQ(IshaAngle, 14.0);
    EXPECT_EQ(form.txtTimeZone.Text(), "4");
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(Times, acceptedTimes);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
}

TEST_F(SetByClockTest, EditsOfACancelledWizardAreNotAccepted) {
    CloseSettings();
    ShowWizard();
    frmWizard->hsDepr2.UserSlide(12);
    frmWizard->Command3.UserClick();
    ASSERT_EQ(Settings.DstStart, 121);
    PassTwoDays();
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Times, acceptedTimes);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
    EXPECT_EQ(Settings.DstStart, 121) << "until the working copy is reloaded";
}

TEST_F(SetByClockTest, PickedCityIsNotAccepted) {
    PickTromso();
    const std::string picked = CityText;
    PassTwoDays();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(ActiveCityText, "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(CityText, picked);
    EXPECT_EQ(Location.City.Name, "Tromsø");
    EXPECT_EQ(Times, acceptedTimes);
}

TEST_F(SetByClockTest, RefusedIshaAngleIsNotTaken) {
    Settings.DstEnabled = 1;
    Settings.DstStart = 0;
    IshaAngle = 11.0;
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, -1);
    ASSERT_EQ(Stored("Isha Dep Angle"), "11");
    platform.dialogs.messages.clear();
    PassTwoDays();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(Times, acceptedTimes);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
}

TEST_F(SetByClockTest, IsPassedOverWhileASetRuns) {
    PickTromso();
    platform.loop.After(1.0, [this] { PassTwoDays(); });
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Times, acceptedTimes);
}

TEST_F(SetByClockTest, NewYearIsThatOfTheAcceptedValuesToo) {
    form.hsDepr.UserSlide(15);
    const SettingsRecord edited = Settings;
    SetClock(2027, 1, 1, 0, 0, 1);
    tmrUpdate_Timer();
    EXPECT_EQ(CurrentYear, 2027);
    EXPECT_NEAR(Times[kFajr][0], acceptedTimes[kFajr][0], 0.01);
    EXPECT_EQ(Settings, edited);
}

TEST_F(SetByClockTest, NewYearDuringASetIsTheAcceptedOneAtTheNextTick) {
    PickTromso();
    platform.clock.Set(DateSerial(2026, 12, 31) + TimeSerial(23, 59, 59));
    platform.loop.After(2.0, [] { tmrUpdate_Timer(); });
    form.SettingsSet.UserClick();
    EXPECT_EQ(ActiveSettings, accepted);
    tmrUpdate_Timer();
    EXPECT_EQ(CurrentYear, 2027);
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_NEAR(Times[kFajr][0], acceptedTimes[kFajr][0], 0.01);
}

TEST_F(SetByClockTest, TicksOfTheNewYearDuringASetShowNothingAndCallNobody) {
    platform.clock.Set(DateSerial(2026, 12, 31) + TimeSerial(23, 59, 59));
    LastRefreshDate = platform.clock.Today();
    ShowDay();
    const auto lastDay = TodayTimes;
    for (const double seconds : {2.0, 2.9}) {
        platform.loop.After(seconds, [&] {
            tmrUpdate_Timer();
            EXPECT_EQ(TodayTimes, lastDay);
            EXPECT_EQ(athanActive, kFalse);
        });
    }
    form.SettingsSet.UserClick();
}

TEST_F(FailedCommitTest, SetButtonOfAWindowThatAnAthanHasOpenedHasNoEffect) {
    PickTromso();
    platform.loop.After(2.5, [this] {
        form.SetEnabled(true);
        Settings = accepted;
        Location = ActiveLocation;
        form.txtTimeZone.SetText("+3.00");
        form.SettingsSet.UserClick();
    });
    form.SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_EQ(ActiveSettings, accepted);
    EXPECT_EQ(Times, acceptedTimes);
}

TEST_F(FailedCommitTest, SettingsDoNotComeUpFromTheMenuMeanwhile) {
    form.Hide();
    bool open = true;
    platform.loop.After(1.0, [&] {
        OpenSettings();
        open = form.Visible();
    });
    SetAcceptedAgain();
    EXPECT_FALSE(open);
}

TEST_F(FailedCommitTest, CityOfTheFaceFollowsASetThatSucceedsAfterAll) {
    Settings.CityIndex = IndexOf("Cairo");
    CityText = LookupLocation(Settings.CityIndex, Location);
    form.txtTimeZone.SetText("2");
    BreakDaylightDays();
    form.SettingsSet.UserClick();
    ASSERT_EQ(frmMain->lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    Settings.DstEnabled = 0;
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, 0);
    EXPECT_EQ(frmMain->lblCity.Caption(), ActiveCityText);
    EXPECT_THAT(ActiveCityText, testing::HasSubstr("Cairo"));
}

TEST_F(SetByClockTest, StoresTheAcceptedValuesAgain) {
    platform.files.Delete("/program/Dat/AI.DAT");
    PassTwoDays();
    EXPECT_EQ(platform.folder.ReadWhole("Dat/AI.DAT").size(), kSettingsRecordSize);
}

TEST_F(SetByClockTest, WindowThatIsNotOpenStaysAway) {
    CloseSettings();
    platform.desktop.calls.clear();
    PassTwoDays();
    EXPECT_THAT(platform.desktop.calls,
                testing::ElementsAre("load fMessage", "show fMessage", "unload fMessage"));
}

TEST_F(SetByClockTest, UserIsKeptOutWhileItRuns) {
    bool enabled = true;
    platform.loop.After(1.0, [&] { enabled = form.Enabled(); });
    PassTwoDays();
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(form.Enabled());
}

}  // namespace
}  // namespace horavex
