#include "config/year_options.h"

#include "engine/current_year.h"
#include "engine/ruled_year.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

constexpr std::int32_t kHour = 3600;

UtcSeconds Greenwich(int year, int month, int day) {
    return static_cast<UtcSeconds>((DateSerial(year, month, day) - DateSerial(1970, 1, 1)) * 86400);
}

struct YearOptionsTest : testing::Test {
    YearOptionsTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
    DataFolder data{platform.files};
};

TEST_F(YearOptionsTest, UnsetTheyAskForNothing) {
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex), YearOptions{});
    const YearRules rules = RulesOfYear({}, 2026);
    EXPECT_EQ(rules.moments, MomentRules{});
    EXPECT_TRUE(rules.hijri.empty());
}

TEST_F(YearOptionsTest, EachStoredOptionArrives) {
    SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kSeventh);
    SaveOption(option::kIshaInterval, 90);
    SaveOption(option::kIshaIntervalRamadan, 120);
    SaveOption(option::kMaghribAngle, 4.5);
    SaveOption(option::kOffsets[kAsr], -3);
    SaveOption(option::kHijriCalendar, HijriSource::kUmmAlQura);
    SaveOption(option::kHijriAdjustment, -1);
    SaveOption(option::kSunOfTheDay, 1);
    const YearOptions options = ReadYearOptions(kMeccaCityIndex);
    EXPECT_EQ(options.highLatitude, HighLatitudeRule::kSeventh);
    EXPECT_EQ(options.ishaInterval, 90);
    EXPECT_EQ(options.ishaIntervalRamadan, 120);
    EXPECT_EQ(options.maghribAngle, 4.5);
    EXPECT_EQ(options.offsets[kAsr], -3);
    EXPECT_EQ(options.hijri, HijriSource::kUmmAlQura);
    EXPECT_EQ(options.hijriAdjustment, -1);
    EXPECT_TRUE(options.sunOfTheDay);
    const MomentRules moments = RulesOfYear(options, 2026).moments;
    EXPECT_EQ(moments.highLatitude, HighLatitudeRule::kSeventh);
    EXPECT_EQ(moments.ishaInterval, 90);
    EXPECT_EQ(moments.ishaIntervalRamadan, 120);
    EXPECT_EQ(moments.maghribAngle, 4.5);
    EXPECT_EQ(moments.offsets[kAsr], -3);
    EXPECT_EQ(moments.start, YearStart::kCalendar);
}

TEST_F(YearOptionsTest, MethodIsTheCountrysOrTheOnlyOneWithAllFigures) {
    Location.Country = "Saudi Arabia";
    Settings.FajrAngle = 18.5;
    EXPECT_EQ(StoredRulesOfYear(2026).method, "") << "Isha by an angle";
    SaveOption(option::kIshaInterval, 90);
    SaveOption(option::kIshaIntervalRamadan, 120);
    EXPECT_EQ(StoredRulesOfYear(2026).method, AuthorityOfCountry("Saudi Arabia")->name);
    SaveOption(option::kOffsets[kFajr], 1);
    EXPECT_EQ(StoredRulesOfYear(2026).method, "");
}

TEST_F(YearOptionsTest, ZoneIsTheCitysUnlessAnotherIsNamed) {
    SaveOption(option::kZoneName, "Europe/Oslo");
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex).zone, "") << "it does not count by itself";
    SaveOption(option::kAutomaticZone, 1);
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex).zone, "Europe/Oslo");
    SaveOption(option::kZoneName, "");
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex).zone, "Asia/Riyadh");
}

TEST_F(YearOptionsTest, ZoneBecomesTheSpansOfTheYear) {
    platform.zoneRules.Add("Europe/Oslo", {kHour, false});
    platform.zoneRules.Turn("Europe/Oslo", Greenwich(2026, 3, 29) + kHour, {2 * kHour, true});
    platform.zoneRules.Turn("Europe/Oslo", Greenwich(2026, 10, 25) + kHour, {kHour, false});
    YearOptions options;
    options.zone = "Europe/Oslo";
    const auto zone = RulesOfYear(options, 2026).moments.zone;
    ASSERT_EQ(zone.size(), 3U);
    EXPECT_LT(zone[0].from, DateSerial(2026, 1, 1) - 1.0);
    EXPECT_EQ(zone[0].hours, 1.0);
    EXPECT_NEAR(zone[1].from, DateSerial(2026, 3, 29) + 1.0 / 24.0, 1e-9);
    EXPECT_EQ(zone[1].hours, 2.0);
    EXPECT_EQ(zone[2].hours, 1.0);
}

TEST_F(YearOptionsTest, UnknownZoneIsAFaultAndCountsAsNoneWhereItIsStored) {
    YearOptions options;
    options.zone = "Mars/Olympus";
    options.ishaInterval = 90;
    EXPECT_THROW(RulesOfYear(options, 2026), UnknownZoneFault);
    SaveOption(option::kAutomaticZone, 1);
    SaveOption(option::kZoneName, "Mars/Olympus");
    SaveOption(option::kIshaInterval, 90);
    const MomentRules rules = StoredRulesOfYear(2026).moments;
    EXPECT_TRUE(rules.zone.empty());
    EXPECT_EQ(rules.ishaInterval, 90);
}

std::size_t RowOfDay(int year, int month, int day) {
    return static_cast<std::size_t>(DateSerial(year, month, day) - DateSerial(year, 1, 1));
}

// The published Ramadan of 1447: 18 February to 19 March 2026.
TEST_F(YearOptionsTest, IntervalOfItsOwnCountsOnTheDaysOfThePublishedRamadan) {
    YearOptions options;
    options.ishaIntervalRamadan = 120;
    const auto ramadan = RulesOfYear(options, 2026).moments.ramadan;
    EXPECT_EQ(ramadan.count(), 30U);
    EXPECT_FALSE(ramadan[RowOfDay(2026, 2, 17)]);
    EXPECT_TRUE(ramadan[RowOfDay(2026, 2, 18)]);
    EXPECT_TRUE(ramadan[RowOfDay(2026, 3, 19)]);
    EXPECT_FALSE(ramadan[RowOfDay(2026, 3, 20)]);
    options.hijriAdjustment = -1;
    const auto later = RulesOfYear(options, 2026).moments.ramadan;
    EXPECT_FALSE(later[RowOfDay(2026, 2, 18)]);
    EXPECT_TRUE(later[RowOfDay(2026, 3, 20)]);
}

// 1451 and 1452: 5 January to 3 February and 26 December 2030 on.
TEST_F(YearOptionsTest, YearMayHoldTwoRamadans) {
    YearOptions options;
    options.ishaIntervalRamadan = 120;
    const auto ramadan = RulesOfYear(options, 2030).moments.ramadan;
    EXPECT_TRUE(ramadan[RowOfDay(2030, 1, 10)]);
    EXPECT_FALSE(ramadan[RowOfDay(2030, 6, 1)]);
    EXPECT_TRUE(ramadan[RowOfDay(2030, 12, 30)]);
}

TEST_F(YearOptionsTest, AuthorityBringsItsIntervalsItsMaghribAndItsMargins) {
    YearOptions options;
    TakeAuthority(*AuthorityOfKey("umm-al-qura"), options);
    EXPECT_EQ(options.ishaInterval, 90);
    EXPECT_EQ(options.ishaIntervalRamadan, 120);
    TakeAuthority(*AuthorityOfKey("tehran"), options);
    EXPECT_EQ(options.ishaInterval, 0);
    EXPECT_EQ(options.maghribAngle, 4.5);
    TakeAuthority(*AuthorityOfKey("turkey"), options);
    EXPECT_EQ(options.offsets, (Margins{0, -7, 5, 4, 7, 0}));
    TakeAuthority(*AuthorityOfKey("mwl"), options);
    EXPECT_EQ(options, YearOptions{});
}

TEST_F(YearOptionsTest, IntervalsThatAreOneNeedNoRamadan) {
    YearOptions options;
    TakeAuthority(*AuthorityOfKey("qatar"), options);
    EXPECT_TRUE(RulesOfYear(options, 2026).moments.ramadan.none());
}

TEST_F(YearOptionsTest, DamagedPublishedMonthsGiveWayToTheArithmeticCalendarAndAreToldOnce) {
    data.ShrinkBy("Dat/UQ.DAT", 1);
    YearOptions options;
    options.hijri = HijriSource::kUmmAlQura;
    options.ishaIntervalRamadan = 120;
    const YearRules rules = RulesOfYear(options, 2026);
    EXPECT_EQ(rules.hijri.at(0), HijriFromDate(DateSerial(2026, 1, 1)));
    EXPECT_EQ(rules.moments.ramadan.count(), 30U);
    RulesOfYear(options, 2027);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text,
              "A data file is missing or damaged; the program goes on without it:\n"
              "Dat\\UQ.DAT: a record is cut short");
}

TEST_F(YearOptionsTest, FilesOfZonesThatCannotBeUsedLeaveTheRecordsZoneAndAreToldOnceEach) {
    SaveOption(option::kAutomaticZone, 1);
    data.ShrinkBy("Dat/Z.DAT", 1);
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex).zone, "");
    EXPECT_EQ(ReadYearOptions(kMeccaCityIndex).zone, "");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_THAT(platform.dialogs.messages[0].text, testing::HasSubstr("Dat\\Z.DAT: "));
    data.Remove("Dat/ZI.DAT");
    EXPECT_TRUE(StoredRulesOfYear(2026).moments.zone.empty());
    ASSERT_EQ(platform.dialogs.messages.size(), 2U);
    EXPECT_THAT(platform.dialogs.messages[1].text, testing::HasSubstr("ZI.DAT"));
}

TEST_F(YearOptionsTest, ToldOfADamagedFileWithoutATableOfTextsTheFaultStandsAlone) {
    SaveOption(option::kAutomaticZone, 1);
    data.ShrinkBy("Dat/Z.DAT", 1);
    data.Remove("Dat/T.DAT");
    ReadYearOptions(kMeccaCityIndex);
    EXPECT_EQ(platform.dialogs.messages.at(0).text, "Dat\\Z.DAT: the last line is cut short");
}

TEST(YearOptionsAlone, IntervalWithoutOneForRamadanNeedsNoPublishedMonths) {
    const TestPlatform platform;
    YearOptions options;
    options.ishaInterval = 90;
    EXPECT_EQ(RulesOfYear(options, 2026).moments.ishaInterval, 90);
}

TEST_F(YearOptionsTest, HijriDatesOfTheYearAreThePublishedOnes) {
    YearOptions options;
    options.hijri = HijriSource::kUmmAlQura;
    CurrentYear = 2026;
    RuledYear.inputs.year = 2026;
    RuledYear.rules = RulesOfYear(options, 2026);
    ASSERT_EQ(RuledYear.rules.hijri.size(), 365U);
    EXPECT_EQ(RuledHijriDate(DateSerial(2026, 11, 21) + 0.9), (HijriDate{1448, 6, 11}));
    EXPECT_EQ(HijriFromDate(DateSerial(2026, 11, 21)), (HijriDate{1448, 6, 10}));
    EXPECT_EQ(RuledHijriDate(DateSerial(2027, 1, 1)), HijriFromDate(DateSerial(2027, 1, 1)))
        << "another year is not this one's";
}

TEST_F(YearOptionsTest, AdjustmentMovesTheArithmeticCalendarToo) {
    YearOptions options;
    options.hijriAdjustment = 2;
    const auto days = RulesOfYear(options, 2024).hijri;
    ASSERT_EQ(days.size(), 366U);
    EXPECT_EQ(days[0], HijriFromDate(DateSerial(2024, 1, 3)));
    EXPECT_EQ(days[365], HijriFromDate(DateSerial(2025, 1, 2)));
}

}  // namespace
}  // namespace horavex
