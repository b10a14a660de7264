#include "store/settings_defaults.h"

#include "store/angle_band.h"
#include "store/location_record.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

constexpr int kSaturday = 6;
constexpr int kSunday = 0;

TEST(DefaultDstDays, FirstIsTheFirstSaturdayOfAprilAndSecondTheDayBeforeTheLastOctoberSunday) {
    for (int year = 1990; year <= 2060; ++year) {
        SCOPED_TRACE(year);
        const DstDays days = DefaultDstDays(DateSerial(year, 7, 1));
        const Date first = DateSerial(year, 1, days.first);
        EXPECT_EQ(Weekday(first), kSaturday);
        EXPECT_EQ(CivilFromDate(first).month, 4);
        EXPECT_LE(CivilFromDate(first).day, 7);
        const Date sunday = DateSerial(year, 1, days.second + 1);
        EXPECT_EQ(Weekday(sunday), kSunday);
        EXPECT_EQ(CivilFromDate(sunday).month, 10);
        EXPECT_GE(CivilFromDate(sunday).day, 25);
    }
}

TEST(DefaultDstDays, Of2026Are94And297) {
    const DstDays days = DefaultDstDays(DateSerial(2026, 11, 21));
    EXPECT_EQ(days.first, 94);    // 4 April
    EXPECT_EQ(days.second, 297);  // the day before Sunday, 25 October, which is day 298
}

TEST(DefaultDstDays, FirstOfAprilItselfMayBeTheSaturday) {
    EXPECT_EQ(DefaultDstDays(DateSerial(2023, 1, 1)).first, 91);  // 1 April 2023
    EXPECT_EQ(DefaultDstDays(DateSerial(2028, 1, 1)).first, 92);  // 1 April of a leap year
}

TEST(DefaultDstDays, LastOfOctoberItselfMayBeTheSunday) {
    EXPECT_EQ(DefaultDstDays(DateSerial(2027, 1, 1)).second, 303);  // 31 October is day 304
    EXPECT_EQ(DefaultDstDays(DateSerial(2004, 1, 1)).second, 304);  // of a leap year
}

TEST(DefaultDstDays, AreThoseOfTheWholeYear) {
    for (const Date today : {DateSerial(2026, 1, 1), DateSerial(2026, 12, 31) + 0.999}) {
        EXPECT_EQ(DefaultDstDays(today).first, 94);
        EXPECT_EQ(DefaultDstDays(today).second, 297);
    }
}

class SettingsDefaultsTest : public DataFolderTest {
protected:
    SettingsDefaultsTest() { Settings = SampleSettings(); }

    const Date today = DateSerial(2026, 11, 21);
};

TEST_F(SettingsDefaultsTest, DaysGoIntoTheWorkingSettings) {
    SetDefaultDstDays(today, 3006);
    EXPECT_EQ(Settings.DstStart, 94);
    EXPECT_EQ(Settings.DstEnd, 297);
}

TEST_F(SettingsDefaultsTest, SouthOfTheEquatorTheDaysChangePlaces) {
    SetDefaultDstDays(today, -1);
    EXPECT_EQ(Settings.DstStart, 297);
    EXPECT_EQ(Settings.DstEnd, 94);
}

TEST_F(SettingsDefaultsTest, EquatorCountsAsNorth) {
    SetDefaultDstDays(today, 0);
    EXPECT_EQ(Settings.DstStart, 94);
    EXPECT_EQ(Settings.DstEnd, 297);
}

TEST_F(SettingsDefaultsTest, DefaultButtonSetsItsFieldsAndLeavesTheRest) {
    Settings.DstEnabled = Settings.AlarmEnabled = Settings.AthanType = 0;
    Settings.QiblaMethod = 2;
    Settings.AlarmTime = 0;
    Settings.Reserved.fill(0xEE);
    SettingsRecord expected = Settings;
    AngleBand = {20, 17, 5};
    IshaAngle = 16.25;
    Location.City.Latitude = 3006;
    ApplyDefaultSettings(today);
    expected.AthanType = kSoundAthan;
    expected.QiblaMethod = 1;
    expected.FajrAngle = 17.0;
    expected.AsrRatio = 1.0;
    expected.AlarmEnabled = 1;
    expected.AlarmTime = 78;
    expected.DstStart = 94;
    expected.DstEnd = 297;
    expected.DstEnabled = 1;
    EXPECT_EQ(Settings, expected);
    EXPECT_EQ(ActiveSettings, SettingsRecord());
    EXPECT_EQ(IshaAngle, 16.25);
}

TEST_F(SettingsDefaultsTest, DefaultButtonFollowsTheWorkingPlaceIntoTheSouth) {
    Location.City.Latitude = -2355;
    ActiveLocation.City.Latitude = 3006;
    ApplyDefaultSettings(today);
    EXPECT_EQ(Settings.DstStart, 297);
    EXPECT_EQ(Settings.DstEnd, 94);
}

TEST_F(SettingsDefaultsTest, DefaultAlarmIsHalfPastSix) {
    ApplyDefaultSettings(today);
    EXPECT_EQ(platform.formats.MediumTime(AlarmMoment(Settings)), "06:30 AM");
}

}  // namespace
}  // namespace horavex
