#include "config/computer_zone.h"

#include "config/settings_window.h"
#include "support/program_test.h"

namespace horavex {
namespace {

struct ComputerZoneTest : ProgramTest {
    ComputerZoneTest() { StartAgain(); }

    void SetOffset(int month, int day, ClockOffset offset) {
        platform.clock.SetOffset(DateSerial(2026, month, day), offset);
    }

    ZoneYear Found() { return FindComputerZone(platform.clock.Today()); }

    /// The rules of central Europe: from the last Sunday of March to the last of October.
    void LiveInEurope() {
        platform.clock.SetOffset(0.0, {1.0, false});
        SetOffset(3, 29, {2.0, true});
        SetOffset(10, 25, {1.0, false});
    }

    SettingsForm& form = *HoravexMainForm;
};

TEST_F(ComputerZoneTest, ZoneWithoutDaylightSaving) {
    platform.clock.SetOffset(0.0, {5.75, false});
    EXPECT_EQ(Found(), (ZoneYear{.hours = 5.75}));
}

TEST_F(ComputerZoneTest, NorthernSummer) {
    LiveInEurope();
    EXPECT_EQ(Found(), (ZoneYear{1.0, true, 88, 297}));
}

TEST_F(ComputerZoneTest, SouthernSummerGoesOverTheTurnOfTheYear) {
    platform.clock.SetOffset(0.0, {11.0, true});
    SetOffset(4, 5, {10.0, false});
    SetOffset(10, 4, {11.0, true});
    EXPECT_EQ(Found(), (ZoneYear{10.0, true, 277, 94}));
}

TEST_F(ComputerZoneTest, WinterThatCountsAsTheExceptionIsTheZoneAllTheSame) {
    platform.clock.SetOffset(0.0, {0.0, true});
    SetOffset(3, 29, {1.0, false});
    SetOffset(10, 25, {0.0, true});
    EXPECT_EQ(Found(), (ZoneYear{0.0, true, 88, 297}));
}

TEST_F(ComputerZoneTest, ZoneThatMovesForGoodGivesTheOffsetOfToday) {
    platform.clock.SetOffset(0.0, {6.0, false});
    SetOffset(3, 1, {5.0, false});
    EXPECT_EQ(Found(), (ZoneYear{.hours = 5.0}));
}

TEST_F(ComputerZoneTest, ShiftOfHalfAnHourGivesTheOffsetOfToday) {
    platform.clock.SetOffset(0.0, {11.0, true});
    SetOffset(4, 5, {10.5, false});
    SetOffset(10, 4, {11.0, true});
    EXPECT_EQ(Found(), (ZoneYear{.hours = 11.0}));
}

TEST_F(ComputerZoneTest, ZoneBeyondTwelveHoursEastReadsTheSameOnTheClock) {
    platform.clock.SetOffset(0.0, {14.0, false});
    EXPECT_EQ(Found(), (ZoneYear{.hours = -10.0}));
    form.cmdComputerZone.UserClick();
    EXPECT_EQ(form.txtTimeZone.Text(), "-10.00");
}

TEST_F(ComputerZoneTest, YearOfTodayCounts) {
    LiveInEurope();
    SetClock(2025, 7, 1, 12, 0, 0);
    EXPECT_EQ(Found(), (ZoneYear{.hours = 1.0}));
}

TEST_F(ComputerZoneTest, LastDayOfALeapYear) {
    SetClock(2028, 1, 1, 12, 0, 0);
    platform.clock.SetOffset(0.0, {2.0, false});
    platform.clock.SetOffset(DateSerial(2028, 12, 31), {3.0, true});
    EXPECT_EQ(Found(), (ZoneYear{2.0, true, 366, 366}));
}

TEST_F(ComputerZoneTest, ButtonFillsTheBoxAndTheDaylightDaysAndNothingElse) {
    LiveInEurope();
    const SettingsRecord before = Settings;
    const SettingsRecord accepted = ActiveSettings;
    form.cmdComputerZone.UserClick();
    EXPECT_EQ(form.txtTimeZone.Text(), "+1.00");
    EXPECT_EQ(form.chkDayLT.Value(), 1);
    EXPECT_EQ(form.hsBegin.Value(), 87);
    EXPECT_EQ(form.lblEnd.Caption(), "Saturday, October 24, 2026");
    SettingsRecord wanted = before;
    wanted.DstEnabled = 1;
    wanted.DstStart = 88;
    wanted.DstEnd = 297;
    EXPECT_EQ(Settings, wanted) << "the zone itself waits for the set button";
    EXPECT_EQ(ActiveSettings, accepted);
}

TEST_F(ComputerZoneTest, ButtonTakesTheTickAwayWhereThereIsNoDaylightSaving) {
    form.chkDayLT.UserClick();
    const std::int16_t begin = Settings.DstStart;
    platform.clock.SetOffset(0.0, {-4.5, false});
    form.cmdComputerZone.UserClick();
    EXPECT_EQ(form.txtTimeZone.Text(), "-4.50");
    EXPECT_EQ(Settings.DstEnabled, 0);
    EXPECT_EQ(Settings.DstStart, begin);
}

TEST_F(ComputerZoneTest, ButtonWritesWhatItShowsThoughTheControlsStandThereAlready) {
    LiveInEurope();
    form.cmdComputerZone.UserClick();
    Settings.DstEnabled = 0;
    Settings.DstStart = 121;  // as a wizard leaves them
    Settings.DstEnd = 274;
    form.cmdComputerZone.UserClick();
    EXPECT_EQ(Settings.DstEnabled, 1);
    EXPECT_EQ(Settings.DstStart, 88);
    EXPECT_EQ(Settings.DstEnd, 297);
    EXPECT_EQ(form.lblBegin.Caption(), "Sunday, March 29, 2026");
    EXPECT_TRUE(form.hsEnd.Enabled());
}

TEST_F(ComputerZoneTest, SetButtonTakesWhatTheButtonFilledIn) {
    LiveInEurope();
    form.cmdComputerZone.UserClick();
    form.SettingsSet.UserClick();
    EXPECT_EQ(ActiveSettings.TimeZone, 1.0);
    EXPECT_EQ(ActiveSettings.DstStart, 88);
}

}  // namespace
}  // namespace horavex
