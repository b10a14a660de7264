#include "store/zone_year.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/zone_database.h"
#include "platform/fixed_zone_rules.h"

namespace horavex {
namespace {

/// Against the zone database of the machine.
ZoneYear YearOf(const std::string& zone, int year, int month = 1, int day = 1) {
    return FindZoneYear(ZoneDatabase(), zone, DateSerial(year, month, day));
}

TEST(ZoneYear, NorthernSummerBeginsAndEndsWithTheDaysThatHaveIt) {
    EXPECT_EQ(YearOf("Europe/Berlin", 2026), (ZoneYear{1.0, true, 88, 297}));
    EXPECT_EQ(YearOf("America/New_York", 2026), (ZoneYear{-5.0, true, 67, 304}));
    EXPECT_EQ(YearOf("Asia/Gaza", 2026), (ZoneYear{2.0, true, 87, 296}));
}

TEST(ZoneYear, ChangeAtMidnightEndsWithTheDayBefore) {
    // From Friday, 24 April, to the end of Thursday, 29 October.
    EXPECT_EQ(YearOf("Africa/Cairo", 2026), (ZoneYear{2.0, true, 114, 302}));
}

TEST(ZoneYear, LeapYearCountsItsDay) {
    EXPECT_EQ(YearOf("Europe/Berlin", 2028), (ZoneYear{1.0, true, 86, 302}));
}

TEST(ZoneYear, SouthernSummerGoesOverTheTurnOfTheYear) {
    EXPECT_EQ(YearOf("Australia/Sydney", 2026), (ZoneYear{10.0, true, 277, 94}));
}

TEST(ZoneYear, WinterThatCountsAsTheExceptionIsAnOrdinarySummer) {
    EXPECT_EQ(YearOf("Europe/Dublin", 2026), (ZoneYear{0.0, true, 88, 297}));
}

TEST(ZoneYear, RamadanWithoutTheHourIsASummerThatGoesOverTheTurnOfTheYear) {
    // All but 15 February to 21 March.
    EXPECT_EQ(YearOf("Africa/Casablanca", 2026), (ZoneYear{0.0, true, 81, 45}));
}

TEST(ZoneYear, ZoneWithoutDaylightSavingHasNone) {
    EXPECT_EQ(YearOf("Asia/Riyadh", 2026), (ZoneYear{.hours = 3.0}));
    EXPECT_EQ(YearOf("Asia/Kathmandu", 2026), (ZoneYear{.hours = 5.75}));
    EXPECT_EQ(YearOf("Pacific/Pago_Pago", 2026), (ZoneYear{.hours = -11.0}));
}

TEST(ZoneYear, ZoneBeyondTwelveHoursEastCountsTwentyFourLower) {
    EXPECT_EQ(YearOf("Pacific/Kiritimati", 2026), (ZoneYear{.hours = -10.0}));
    EXPECT_EQ(YearOf("Pacific/Apia", 2026), (ZoneYear{.hours = -11.0}));
    EXPECT_EQ(YearOf("Pacific/Chatham", 2026), (ZoneYear{-11.25, true, 270, 94}));
    EXPECT_EQ(YearOf("Pacific/Auckland", 2026), (ZoneYear{12.0, true, 270, 94}));
}

TEST(ZoneYear, ShiftOfHalfAnHourGivesTheOffsetOfTheDay) {
    EXPECT_EQ(YearOf("Australia/Lord_Howe", 2026, 1, 1), (ZoneYear{.hours = 11.0}));
    EXPECT_EQ(YearOf("Australia/Lord_Howe", 2026, 7, 15), (ZoneYear{.hours = 10.5}));
}

TEST(ZoneYear, ZoneThatMovesForGoodGivesTheOffsetOfTheDay) {
    EXPECT_EQ(YearOf("Asia/Almaty", 2024, 2, 29), (ZoneYear{.hours = 6.0}));
    EXPECT_EQ(YearOf("Asia/Almaty", 2024, 3, 1), (ZoneYear{.hours = 5.0}));
}

TEST(ZoneYear, OfTwoSpansTheFirstCounts) {
    // Egypt's summer of 2014 made way for Ramadan.
    EXPECT_EQ(YearOf("Africa/Cairo", 2014), (ZoneYear{2.0, true, 136, 177}));
}

TEST(ZoneYear, YearThatIsAheadFromItsFirstDayToItsLastHasTheOffsetThatItShows) {
    FixedZoneRules rules;
    rules.Add("All/Summer", {7200, true});
    EXPECT_EQ(FindZoneYear(rules, "All/Summer", DateSerial(2026, 1, 1)), (ZoneYear{.hours = 2.0}));
}

TEST(ZoneYear, UnknownZoneIsAFault) {
    EXPECT_THROW(YearOf("Europe/Berlun", 2026), UnknownZoneFault);
}

TEST(TakeZoneYearTest, DaysStayAsTheyAreWhereTheYearHasNone) {
    SettingsRecord record;
    record.DstEnabled = 1;
    record.DstStart = 88;
    record.DstEnd = 297;
    TakeZoneYear({.hours = 5.5}, record);
    EXPECT_EQ(record.TimeZone, 5.5);
    EXPECT_EQ(record.DstEnabled, 0);
    EXPECT_EQ(record.DstStart, 88);
    EXPECT_EQ(record.DstEnd, 297);
}

TEST(TakeZoneYearTest, DaysOfTheYearAreTaken) {
    SettingsRecord record;
    TakeZoneYear({-5.0, true, 67, 304}, record);
    EXPECT_EQ(record.TimeZone, -5.0);
    EXPECT_EQ(record.DstEnabled, 1);
    EXPECT_EQ(record.DstStart, 67);
    EXPECT_EQ(record.DstEnd, 304);
}

}  // namespace
}  // namespace horavex
