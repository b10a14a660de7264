#include "engine/moments.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/date.h"
#include "engine/angle.h"

namespace horavex {
namespace {

constexpr double kMinute = 1.0 / 60.0;

/// Row of a day of 2026.
std::size_t Day(int month, int day) {
    return static_cast<std::size_t>(DateSerial(2026, month, day) - DateSerial(2026, 1, 1));
}

/// A place of the year 2026 and its rules; degrees and hours.
struct Case {
    Case(double latitude, double longitude, double zone, double angle)
        : inputs{2026,
                 {DegToRad(latitude), -DegToRad(longitude), zone},
                 {angle, angle, 1.0, 0, 0, 0, true, true}} {}

    Case& Rule(HighLatitudeRule rule) {
        rules.highLatitude = rule;
        inputs.method.needsFajr = inputs.method.needsIsha = rule == HighLatitudeRule::kNone;
        return *this;
    }

    Case& Daylight(std::int16_t start, std::int16_t end) {
        inputs.method.dstEnabled = 1;
        inputs.method.dstStart = start;
        inputs.method.dstEnd = end;
        return *this;
    }

    void Calculate() {
        table = CalculateYear(inputs);
        calculated = true;
    }

    DayMoments On(int month, int day) {
        if (!calculated) {
            Calculate();
        }
        EXPECT_FALSE(table.failure);
        return MomentsOf({inputs, table.times, rules}, Day(month, day));
    }

    YearInputs inputs;
    MomentRules rules;
    YearTable table;
    bool calculated = false;
};

Case Cairo() {
    return {30.05, 31.25, 2.0, 17.5};
}

Case Oslo() {
    return Case(59.91, 10.75, 1.0, 18.0).Daylight(88, 297);
}

/// Midnight sun from May to July, no sunrise from the end of November on.
Case Tromso() {
    return {69.65, 18.96, 1.0, 18.0};
}

TEST(MomentsOf, WithoutRulesTheyAreTheTablesOwnNumbers) {
    Case cairo = Cairo().Daylight(100, 200);
    for (const int month : {1, 5, 12}) {
        const DayMoments moments = cairo.On(month, 15);
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            EXPECT_EQ(moments[prayer].hours, cairo.table.times[prayer][Day(month, 15)]);
            EXPECT_EQ(moments[prayer].by, MomentBy::kSun);
        }
    }
}

TEST(MomentsOf, OffsetsAreAddedByPrayer) {
    Case cairo = Cairo();
    const DayMoments plain = cairo.On(3, 1);
    cairo.rules.offsets = {2, 0, 5, 0, -3, 60};
    const DayMoments moved = cairo.On(3, 1);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(moved[prayer].hours - plain[prayer].hours,
                    cairo.rules.offsets[prayer] * kMinute, 1e-12);
    }
}

TEST(MomentsOf, IntervalCountsFromMaghribAndRamadanHasItsOwn) {
    Case mecca(21.42, 39.82, 3.0, 18.5);
    mecca.rules.ishaInterval = 90;
    mecca.rules.ishaIntervalRamadan = 120;
    mecca.rules.ramadan.set(Day(3, 1));
    const DayMoments usual = mecca.On(5, 1);
    EXPECT_NEAR(usual[kIsha].hours - usual[kMaghrib].hours, 1.5, 1e-12);
    EXPECT_EQ(usual[kIsha].by, MomentBy::kInterval);
    const DayMoments ramadan = mecca.On(3, 1);
    EXPECT_NEAR(ramadan[kIsha].hours - ramadan[kMaghrib].hours, 2.0, 1e-12);
}

TEST(MomentsOf, WithoutAnIntervalOfItsOwnRamadanHasTheUsualOne) {
    Case mecca(21.42, 39.82, 3.0, 18.5);
    mecca.rules.ishaInterval = 90;
    mecca.rules.ramadan.set();
    const DayMoments day = mecca.On(3, 1);
    EXPECT_NEAR(day[kIsha].hours - day[kMaghrib].hours, 1.5, 1e-12);
}

TEST(MomentsOf, IntervalOfRamadanAloneLeavesOtherMonthsToTheAngle) {
    Case mecca(21.42, 39.82, 3.0, 18.5);
    mecca.rules.ishaIntervalRamadan = 120;
    mecca.rules.ramadan.set(Day(3, 1));
    EXPECT_EQ(mecca.On(5, 1)[kIsha].by, MomentBy::kSun);
    EXPECT_EQ(mecca.On(3, 1)[kIsha].by, MomentBy::kInterval);
}

TEST(MomentsOf, OffsetOfMaghribDoesNotMoveTheIshaThatCountsFromIt) {
    Case mecca(21.42, 39.82, 3.0, 18.5);
    mecca.rules.ishaInterval = 90;
    const double isha = mecca.On(5, 1)[kIsha].hours;
    mecca.rules.offsets[kMaghrib] = 10;
    EXPECT_EQ(mecca.On(5, 1)[kIsha].hours, isha);
}

// 4.5 degrees take some 20 minutes at the latitude of Tehran in March.
TEST(MomentsOf, AngleOfMaghribComesBehindSunset) {
    Case tehran(35.69, 51.39, 3.5, 17.7);
    const double sunset = tehran.On(3, 21)[kMaghrib].hours;
    tehran.rules.maghribAngle = 4.5;
    const DayMoments day = tehran.On(3, 21);
    EXPECT_NEAR(day[kMaghrib].hours - sunset, 18.0 * kMinute, 1.0 * kMinute);
    EXPECT_EQ(day[kMaghrib].by, MomentBy::kSun);
}

// The angle of Fajr and Isha reached with Maghrib's own equation: both ways are one sun.
TEST(MomentsOf, AngleOfMaghribIsTheAngleOfTheTable) {
    Case cairo = Cairo();
    cairo.inputs.method.ishaAngle = 9.0;
    cairo.rules.maghribAngle = 9.0;
    const DayMoments day = cairo.On(9, 23);
    EXPECT_NEAR(day[kMaghrib].hours, day[kIsha].hours, 2.0 / 3600.0);
}

TEST(MomentsOf, ZoneGivesEachMomentTheOffsetOfItsOwnInstant) {
    Case london(51.51, -0.13, 0.0, 12.0);
    london.rules.zone = {{DateSerial(2025, 10, 26), 0.0},
                         {DateSerial(2026, 3, 29) + 1.0 / 24.0, 1.0},
                         {DateSerial(2026, 10, 25) + 1.0 / 24.0, 0.0}};
    const DayMoments before = london.On(3, 28);
    EXPECT_EQ(before[kZuhr].hours, london.table.times[kZuhr][Day(3, 28)]);
    const DayMoments summer = london.On(3, 29);
    EXPECT_NEAR(summer[kFajr].hours, london.table.times[kFajr][Day(3, 29)] + 1.0, 1e-12);
    const DayMoments winter = london.On(10, 25);
    EXPECT_NEAR(winter[kFajr].hours, london.table.times[kFajr][Day(10, 25)], 1e-12);
}

TEST(MomentsOf, ChangeBetweenTwoMomentsOfADayPartsThem) {
    Case cairo = Cairo();
    cairo.rules.zone = {{DateSerial(2026, 1, 1), 2.0},
                        {DateSerial(2026, 4, 24) + 8.0 / 24.0, 3.0}};  // at 10:00
    const DayMoments day = cairo.On(4, 24);
    EXPECT_NEAR(day[kShurooq].hours, cairo.table.times[kShurooq][Day(4, 24)], 1e-12);
    EXPECT_NEAR(day[kZuhr].hours, cairo.table.times[kZuhr][Day(4, 24)] + 1.0, 1e-12);
}

TEST(MomentsOf, DaylightHourOfTheRecordDoesNotCountBesideAZone) {
    Case cairo = Cairo();
    const double plain = cairo.On(7, 1)[kZuhr].hours;
    Case daylight = Cairo().Daylight(100, 300);
    daylight.rules.zone = {{DateSerial(2026, 1, 1), 2.0}};
    EXPECT_NEAR(daylight.On(7, 1)[kZuhr].hours, plain, 1e-12);
}

// Kiritimati is 14 hours east of Greenwich; the record holds the same clock as 10 hours west.
TEST(MomentsOf, RecordThatIsAWholeDayOffShowsTheSameClock) {
    Case kiritimati(1.87, -157.43, -10.0, 18.0);
    const DayMoments plain = kiritimati.On(6, 1);
    kiritimati.rules.zone = {{DateSerial(2025, 1, 1), 14.0}};
    const DayMoments zoned = kiritimati.On(6, 1);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(zoned[prayer].hours, plain[prayer].hours, 1e-9) << prayer;
    }
}

// Berlin, 20 March 2024 (almanac): sunrise 6:10, sunset 18:19; without the option those of the
// 21st.
TEST(MomentsOf, SunOfTheDayItselfCountsInAYearWhoseDayNumberIsLate) {
    Case berlin(52.52, 13.41, 1.0, 12.0);
    berlin.inputs.year = 2024;
    const std::size_t row = 79;
    berlin.Calculate();
    const double late = berlin.table.times[kMaghrib][row];
    berlin.inputs.start = berlin.rules.start = YearStart::kCalendar;
    berlin.Calculate();
    const DayMoments day = MomentsOf({berlin.inputs, berlin.table.times, berlin.rules}, row);
    EXPECT_EQ(day[kMaghrib].hours, berlin.table.times[kMaghrib][row]);
    EXPECT_NEAR((late - day[kMaghrib].hours) * 60.0, 1.7, 0.2);
}

// An evening's twilight by its own equation takes the same sun as the table.
TEST(MomentsOf, AngleOfMaghribTakesTheSunOfTheDayToo) {
    Case cairo = Cairo();
    cairo.inputs.year = 2024;
    cairo.inputs.method.ishaAngle = cairo.rules.maghribAngle = 9.0;
    cairo.inputs.start = cairo.rules.start = YearStart::kCalendar;
    cairo.Calculate();
    const DayMoments day = MomentsOf({cairo.inputs, cairo.table.times, cairo.rules}, 79);
    EXPECT_NEAR(day[kMaghrib].hours, day[kIsha].hours, 2.0 / 3600.0);
}

TEST(HighLatitude, RuleChangesNothingWhereItsPortionIsNotReached) {
    Case cairo = Cairo();
    const DayMoments plain = cairo.On(6, 21);
    for (const auto rule :
         {HighLatitudeRule::kMiddle, HighLatitudeRule::kAngle, HighLatitudeRule::kNearest}) {
        EXPECT_EQ(cairo.Rule(rule).On(6, 21), plain);
    }
}

TEST(HighLatitude, WithoutARuleTheYearGivesUp) {
    EXPECT_TRUE(CalculateYear(Oslo().inputs).failure);
    EXPECT_FALSE(CalculateYear(Oslo().Rule(HighLatitudeRule::kSeventh).inputs).failure);
}

// Sunset of 21 June 2026 in Oslo 22:44, sunrise of the 22nd 3:54 (almanac): a night of 5:10.
TEST(HighLatitude, PortionsAreCountedFromSunsetAndSunrise) {
    struct Row {
        HighLatitudeRule rule;
        double portion;
    };
    for (const auto& [rule, portion] :
         {Row{HighLatitudeRule::kMiddle, 0.5}, Row{HighLatitudeRule::kSeventh, 1.0 / 7.0},
          Row{HighLatitudeRule::kAngle, 18.0 / 60.0}}) {
        Case oslo = Oslo().Rule(rule);
        const DayMoments day = oslo.On(6, 21);
        const DayMoments next = oslo.On(6, 22);
        const double night = next[kShurooq].hours + 24.0 - day[kMaghrib].hours;
        EXPECT_NEAR(night, 5.0 + 10.0 / 60.0, 1.5 * kMinute);
        EXPECT_NEAR(day[kIsha].hours, day[kMaghrib].hours + portion * night, 1e-9);
        EXPECT_NEAR(next[kFajr].hours, next[kShurooq].hours - portion * night, 1e-9);
        EXPECT_EQ(day[kIsha].by, MomentBy::kRule);
        EXPECT_EQ(next[kFajr].by, MomentBy::kRule);
        EXPECT_EQ(day[kMaghrib].by, MomentBy::kSun);
    }
}

TEST(HighLatitude, MiddleOfASummersNightLiesBehindMidnight) {
    const DayMoments day = Oslo().Rule(HighLatitudeRule::kMiddle).On(6, 21);
    EXPECT_NEAR(day[kIsha].hours, 24.0 + 1.0 + 19.0 * kMinute, 2.0 * kMinute);
    EXPECT_EQ(day[kIsha].dayShift, 1);
    EXPECT_EQ(day[kMaghrib].dayShift, 0);
}

TEST(HighLatitude, WhereTheSunSinksTheLaterThanTheRuleTheRuleCounts) {
    Case oslo = Oslo().Rule(HighLatitudeRule::kSeventh);
    const DayMoments autumn = oslo.On(10, 1);  // 18 degrees are reached, and take two hours
    EXPECT_EQ(autumn[kIsha].by, MomentBy::kRule);
    EXPECT_LT(autumn[kIsha].hours, oslo.table.times[kIsha][Day(10, 1)]);
    EXPECT_GT(autumn[kFajr].hours, oslo.table.times[kFajr][Day(10, 1)]);
}

TEST(HighLatitude, NearestDayIsTheLastThatHadTheTwilight) {
    Case oslo = Oslo().Rule(HighLatitudeRule::kNearest);
    const DayMoments before = oslo.On(4, 15);
    EXPECT_EQ(before[kIsha].by, MomentBy::kSun);
    std::size_t last = Day(4, 15);
    while (IsEvent(oslo.table.times[kIsha][last + 1])) {
        ++last;
    }
    const DayMoments kept = MomentsOf({oslo.inputs, oslo.table.times, oslo.rules}, last);
    const DayMoments summer = oslo.On(6, 21);
    EXPECT_EQ(summer[kIsha].by, MomentBy::kRule);
    EXPECT_NEAR(summer[kIsha].hours, kept[kIsha].hours, 1e-9);
    EXPECT_NEAR(summer[kFajr].hours, kept[kFajr].hours, 0.3);
}

TEST(HighLatitude, NightsOfMidnightSunBorrowTheLastDayThatHadBothHorizons) {
    Case tromso = Tromso().Rule(HighLatitudeRule::kSeventh);
    const DayMoments day = tromso.On(6, 21);
    EXPECT_EQ(day[kShurooq].by, MomentBy::kRule);
    EXPECT_EQ(day[kMaghrib].by, MomentBy::kRule);
    EXPECT_EQ(day[kZuhr].by, MomentBy::kSun);
    EXPECT_LT(day[kShurooq].hours, 1.5);
    EXPECT_GT(day[kMaghrib].hours, 23.0);
    EXPECT_LE(day[kFajr].hours, day[kShurooq].hours);
    EXPECT_GE(day[kIsha].hours, day[kMaghrib].hours);
}

/// Towns beyond or near the polar circles by the names of people who live there.
struct Town {
    const char* name;
    double latitude;
    double longitude;
    double zone;
};

constexpr Town kTowns[] = {{"Tromso", 69.65, 18.96, 1.0},       {"Murmansk", 68.97, 33.08, 3.0},
                           {"Inuvik", 68.36, -133.72, -7.0},    {"Utqiagvik", 71.29, -156.79, -9.0},
                           {"Norilsk", 69.35, 88.2, 7.0},       {"Tiksi", 71.64, 128.87, 9.0},
                           {"Pevek", 69.7, 170.31, 12.0},       {"Kirkenes", 69.73, 30.05, 1.0},
                           {"Longyearbyen", 78.22, 15.65, 1.0}, {"Ushuaia", -54.8, -68.3, -3.0},
                           {"Reykjavik", 64.15, -21.94, 0.0}};

void ExpectOrder(const DayMoments& day, const std::string& where) {
    for (std::size_t prayer = 0; prayer + 1 < kPrayerCount; ++prayer) {
        EXPECT_LE(day[prayer].hours, day[prayer + 1].hours) << where << " " << prayer;
    }
    EXPECT_GT(day[kFajr].hours, -3.0) << where;
    EXPECT_LT(day[kIsha].hours, 27.0) << where;
}

/// A year of a town under a rule, with Maghrib at sunset (0) or by an angle. The rule that looks
/// back for a day takes long: every fifth day does.
void ExpectOrderedYear(const Town& town, HighLatitudeRule rule, double maghribAngle) {
    Case place = Case(town.latitude, town.longitude, town.zone, 18.0).Rule(rule);
    place.rules.maghribAngle = maghribAngle;
    place.Calculate();
    const std::size_t step = rule == HighLatitudeRule::kNearest ? 5 : 1;
    for (std::size_t row = 0; row < 365; row += step) {
        const std::string where = std::string(town.name) + " " + std::to_string(row) + " rule " +
                                  std::to_string(static_cast<int>(rule));
        ExpectOrder(MomentsOf({place.inputs, place.table.times, place.rules}, row), where);
    }
}

TEST(HighLatitude, EveryDayOfAPolarYearHasItsMomentsInOrder) {
    for (const Town& town : kTowns) {
        for (const auto rule : {HighLatitudeRule::kMiddle, HighLatitudeRule::kSeventh,
                                HighLatitudeRule::kAngle, HighLatitudeRule::kNearest}) {
            ExpectOrderedYear(town, rule, 0.0);
            ExpectOrderedYear(town, rule, 4.5);
        }
    }
}

// The sun of a summer's night in Oslo sinks to 4.5 degrees long after a seventh of the night.
TEST(HighLatitude, MaghribByAnAngleHasItsPartOfIshasPortion) {
    Case oslo = Oslo().Rule(HighLatitudeRule::kSeventh);
    const DayMoments plain = oslo.On(6, 21);
    oslo.rules.maghribAngle = 4.5;
    const DayMoments day = oslo.On(6, 21);
    EXPECT_EQ(day[kMaghrib].by, MomentBy::kRule);
    EXPECT_NEAR(day[kMaghrib].hours - plain[kMaghrib].hours,
                (plain[kIsha].hours - plain[kMaghrib].hours) * 4.5 / 18.0, 1e-9);
}

// Noon is at 11:47 and the sun a degree high: Asr comes two minutes later, before 12 o'clock.
TEST(HighLatitude, AsrOfAShortDayComesBehindNoon) {
    Case kiruna = Case(67.86, 20.23, 1.0, 18.0).Rule(HighLatitudeRule::kSeventh);
    const DayMoments day = kiruna.On(1, 11);
    EXPECT_EQ(day[kAsr].by, MomentBy::kSun);
    EXPECT_LT(day[kAsr].hours, 12.0);
    EXPECT_GT(day[kAsr].hours, day[kZuhr].hours);
}

// A winter without sun goes over the turn of the year, and so does what it borrows.
TEST(HighLatitude, NewYearBorrowsTheSameDayAsItsEve) {
    Case tromso = Tromso().Rule(HighLatitudeRule::kSeventh);
    const DayMoments eve = tromso.On(12, 31);
    const DayMoments newYear = tromso.On(1, 1);
    for (const Prayer prayer : {kShurooq, kAsr, kMaghrib}) {
        EXPECT_NEAR(newYear[prayer].hours - newYear[kZuhr].hours,
                    eve[prayer].hours - eve[kZuhr].hours, 1e-9);
    }
}

// 54.8 degrees south: nights of early January lack 18 degrees as those of late December do.
TEST(HighLatitude, NearestDayOfASouthernJanuaryIsOneOfTheSpringBefore) {
    Case ushuaia = Case(-54.8, -68.3, -3.0, 18.0).Rule(HighLatitudeRule::kNearest);
    const DayMoments eve = ushuaia.On(12, 31);
    const DayMoments newYear = ushuaia.On(1, 1);
    ASSERT_EQ(newYear[kIsha].by, MomentBy::kRule);
    EXPECT_NEAR(newYear[kIsha].hours, eve[kIsha].hours, 1e-9);
    EXPECT_NEAR(newYear[kFajr].hours, eve[kFajr].hours, 1e-9);
}

/// By the sun's own days: sunrise and sunset move by less than an hour and a half from one to the
/// next, whatever half of the night the table has slipped into.
TEST(HighLatitude, SunriseAndSunsetGoOnFromDayToDay) {
    for (const Town& town : kTowns) {
        Case place =
            Case(town.latitude, town.longitude, town.zone, 18.0).Rule(HighLatitudeRule::kMiddle);
        place.Calculate();
        DayMoments former{};
        for (std::size_t row = 0; row < 365; ++row) {
            const DayMoments day = MomentsOf({place.inputs, place.table.times, place.rules}, row);
            for (const Prayer prayer : {kShurooq, kMaghrib}) {
                if (row > 0 && day[prayer].by == MomentBy::kSun &&
                    former[prayer].by == MomentBy::kSun) {
                    EXPECT_LT(std::fabs(day[prayer].hours - former[prayer].hours), 1.5)
                        << town.name << " " << row << " " << prayer;
                }
            }
            former = day;
        }
    }
}

// Murmansk on 19 May 2026: the sun rises at 1:35.
TEST(HighLatitude, EventThatTheTableHasFoldedTwiceIsWorkedOutAnew) {
    Case murmansk = Case(68.97, 33.08, 3.0, 18.0).Rule(HighLatitudeRule::kSeventh);
    EXPECT_NEAR(murmansk.On(5, 19)[kShurooq].hours, 1.0 + 35.0 / 60.0, 0.1);
}

// Tromso on 22 November 2026: a short day, and a real one.
TEST(HighLatitude, LastDaysBeforeThePolarNightAreTheirOwn) {
    const DayMoments day = Tromso().Rule(HighLatitudeRule::kSeventh).On(11, 22);
    EXPECT_EQ(day[kShurooq].by, MomentBy::kSun);
    EXPECT_NEAR(day[kShurooq].hours, 10.0 + 14.0 / 60.0, 0.1);
    EXPECT_NEAR(day[kMaghrib].hours, 12.0 + 45.0 / 60.0, 0.1);
}

// The equation of time moves noon by minutes through a polar night.
TEST(HighLatitude, BorrowedDayKeepsItsDistanceFromNoonAndTheNoonIsTheDaysOwn) {
    Case tromso = Tromso().Rule(HighLatitudeRule::kSeventh);
    const DayMoments former = tromso.On(12, 1);
    const DayMoments later = tromso.On(12, 21);
    ASSERT_EQ(former[kShurooq].by, MomentBy::kRule);
    ASSERT_EQ(later[kShurooq].by, MomentBy::kRule);
    EXPECT_EQ(later[kZuhr].hours, tromso.table.times[kZuhr][Day(12, 21)]);
    EXPECT_GT(later[kZuhr].hours - former[kZuhr].hours, 0.1);
    for (const Prayer prayer : {kShurooq, kAsr, kMaghrib}) {
        EXPECT_NEAR(later[prayer].hours - later[kZuhr].hours,
                    former[prayer].hours - former[kZuhr].hours, 1e-9);
    }
}

TEST(HighLatitude, WithoutARuleNoDayIsBorrowed) {
    Case tromso = Tromso();
    tromso.inputs.method.needsFajr = tromso.inputs.method.needsIsha = false;
    tromso.rules.offsets[kZuhr] = 1;
    const DayMoments day = tromso.On(12, 21);
    EXPECT_EQ(day[kShurooq].hours, NoEvent);
    EXPECT_EQ(day[kMaghrib].hours, NoEvent);
    EXPECT_TRUE(IsEvent(day[kZuhr].hours));
}

TEST(HighLatitude, IntervalEndsAtTheMiddleOfTheNight) {
    Case tromso = Tromso().Rule(HighLatitudeRule::kSeventh);
    tromso.rules.ishaInterval = 90;
    const DayMoments summer = tromso.On(6, 21);
    EXPECT_EQ(summer[kIsha].by, MomentBy::kRule);
    EXPECT_LE(summer[kIsha].hours, tromso.On(6, 22)[kFajr].hours + 24.0);
    EXPECT_EQ(tromso.On(3, 1)[kIsha].by, MomentBy::kInterval);
}

// At 57.7 degrees the sun sinks to 12 degrees until the end of May, at the end long after midnight.
TEST(HighLatitude, IshaBehindMidnightGoesOnInItsOwnHalfOfTheNight) {
    Case goteborg = Case(57.7, 11.97, 1.0, 12.0).Rule(HighLatitudeRule::kNearest);
    double former = goteborg.On(4, 20)[kIsha].hours;
    for (int day = 21; day < 30; ++day) {
        const double isha = goteborg.On(4, day)[kIsha].hours;
        EXPECT_GT(isha, former);
        EXPECT_LT(isha - former, 0.25);
        former = isha;
    }
    former = goteborg.On(5, 1)[kIsha].hours;
    for (int day = 2; day < 31; ++day) {
        const Moment isha = goteborg.On(5, day)[kIsha];
        EXPECT_GE(isha.hours, former) << day;
        EXPECT_LT(isha.hours, 25.5) << day;
        former = isha.hours;
    }
}

// At 89.5 degrees no day of the year has a sunrise and a sunset, and no portion of a night.
TEST(HighLatitude, YearWithoutAWholeDayHasNoPortionOfItsNights) {
    Case far = Case(89.5, 10.0, 1.0, 18.0).Rule(HighLatitudeRule::kMiddle);
    far.rules.ishaInterval = 90;
    const DayMoments day = far.On(6, 21);
    EXPECT_EQ(day[kFajr].hours, NoEvent);
    EXPECT_EQ(day[kIsha].hours, NoEvent);
}

// The margin of Maghrib alone goes beyond an Isha by a seventh of a night of a quarter of an hour.
TEST(HighLatitude, MarginOfMaghribTakesIshaAlong) {
    Case place = Case(65.9, 22.0, 1.0, 18.0).Rule(HighLatitudeRule::kSeventh);
    place.rules.offsets[kMaghrib] = 7;
    const DayMoments day = place.On(6, 13);
    EXPECT_LE(day[kMaghrib].hours, day[kIsha].hours);
}

// 14 degrees are reached on a day without sunset, before the sunset that the day borrows.
TEST(HighLatitude, IshaOfThePolarNightKeepsBehindABorrowedMaghrib) {
    Case place = Case(78.2, 15.6, 1.0, 14.0).Rule(HighLatitudeRule::kMiddle);
    place.rules.maghribAngle = 4.5;
    const DayMoments day = place.On(1, 1);
    EXPECT_LE(day[kMaghrib].hours, day[kIsha].hours);
}

TEST(HighLatitude, PoleItselfHasNoMomentsButZuhr) {
    Case pole = Case(90.0, 0.0, 0.0, 18.0).Rule(HighLatitudeRule::kMiddle);
    const DayMoments day = pole.On(6, 21);
    EXPECT_TRUE(IsEvent(day[kZuhr].hours));
    EXPECT_EQ(day[kFajr].hours, NoEvent);
    EXPECT_EQ(day[kIsha].hours, NoEvent);
    EXPECT_EQ(day[kIsha].dayShift, 0) << "what does not come has no day either";
}

TEST(MomentsOf, DaysThatAreKeptBetweenRowsChangeNoMoment) {
    for (const double latitude : {30.05, 59.91, 69.65, 78.22, -89.0}) {
        for (const auto rule : {HighLatitudeRule::kNone, HighLatitudeRule::kMiddle,
                                HighLatitudeRule::kSeventh, HighLatitudeRule::kNearest}) {
            Case place = Case(latitude, 18.95, 1.0, 18.0).Rule(rule);
            place.rules.offsets[kFajr] = 1;  // there are rules whatever the rule
            place.Calculate();
            SharedByDays kept(place.inputs);
            for (std::size_t row = 0; row < 365; ++row) {
                const YearSource alone = {place.inputs, place.table.times, place.rules};
                const YearSource year = {place.inputs, place.table.times, place.rules, &kept};
                EXPECT_EQ(MomentsOf(year, row), MomentsOf(alone, row)) << latitude << " " << row;
            }
            const YearSource alone = {place.inputs, place.table.times, place.rules};
            EXPECT_EQ(MomentsOfRows(alone, 365).at(200), MomentsOf(alone, 200)) << latitude;
        }
    }
}

}  // namespace
}  // namespace horavex
