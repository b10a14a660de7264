#include <map>

#include "base/date.h"
#include "ctl/ctl_json.h"
#include "engine/year_table.h"
#include "platform/fixed_formats.h"

namespace horavex {
namespace {

constexpr int kSecondsADay = 86400;

std::string TwoDigits(int number) {
    return std::string(number < 10 ? "0" : "") + std::to_string(number);
}

/// Mecca at a second of a day, 0 to 86399.
Json At(const std::string& date, int second) {
    return JsonOf(Ctl(), "today --at " + date + "T" + TwoDigits(second / 3600) + ":" +
                             TwoDigits(second / 60 % 60) + ":" + TwoDigits(second % 60));
}

/// The seconds after midnight of the prayers of a day.
std::vector<int> SecondsOf(const std::string& date) {
    std::vector<int> seconds;
    const Json day = At(date, 0);
    for (const Json& hours : day["hours"]) {
        seconds.push_back(SecondOfDay(hours.get<double>() / 24.0));
    }
    return seconds;
}

std::string LongTime(int second) {
    return FixedFormats().LongTime(second / kSecondsPerDay);
}

const std::string kDay = "2026-11-21";

void ExpectNext(const Json& day, std::size_t prayer, const std::string& sentence, int seconds) {
    const Json& next = day["next"];
    EXPECT_EQ(next["index"], prayer);
    EXPECT_EQ(next["sentence"], sentence);
    EXPECT_EQ(next["remainingSeconds"], seconds);
    EXPECT_EQ(next["remaining"], std::to_string(seconds / 3600) + ":" +
                                     std::to_string(seconds / 60 % 60) + ":" +
                                     std::to_string(seconds % 60));
}

TEST(CtlTodayAt, BeforeFajrLessThanADayIsLeft) {
    const int fajr = SecondsOf(kDay)[kFajr];
    ExpectNext(At(kDay, 3600), kFajr, "Fajr at " + LongTime(fajr), fajr - 3600);
}

TEST(CtlTodayAt, MidnightCountsTheWholeTimeToFajr) {
    const int fajr = SecondsOf(kDay)[kFajr];
    ExpectNext(At(kDay, 0), kFajr, "Fajr at " + LongTime(fajr), fajr);
}

// London's clock goes from 1:00 to 2:00 in that night.
TEST(CtlTodayAt, HourThatIsLeftOutBeforeFajrIsNotWaitedFor) {
    const Json next = JsonOf(Ctl(), "today --city London --at 2026-03-28T23:00:00")["next"];
    const Json day = JsonOf(Ctl(), "today --city London --at 2026-03-29T12:00:00");
    const int fajr = SecondOfDay(day["hours"][0].get<double>() / 24.0);
    EXPECT_EQ(next["remainingSeconds"], fajr) << "an hour before midnight, an hour less behind it";
}

TEST(CtlTodayAt, DateAloneIsItsMidnight) {
    EXPECT_EQ(JsonOf(Ctl(), "today --at 2026-11-21"), At(kDay, 0));
}

TEST(CtlTodayAt, NobodyWaitsForShurooq) {
    const auto times = SecondsOf(kDay);
    const int dawn = times[kFajr] + 60;
    ExpectNext(At(kDay, dawn), kZuhr, "Zuhr at " + LongTime(times[kZuhr]), times[kZuhr] - dawn);
    ExpectNext(At(kDay, times[kShurooq] + 60), kZuhr, "Zuhr at " + LongTime(times[kZuhr]),
               times[kZuhr] - times[kShurooq] - 60);
}

TEST(CtlTodayAt, EachPrayerIsNextUntilItsSecondHasCome) {
    const auto times = SecondsOf(kDay);
    const std::map<std::size_t, std::string> names = {
        {kZuhr, "Zuhr"}, {kAsr, "Asr"}, {kMaghrib, "Maghrib"}, {kIsha, "Isha"}};
    for (const auto& [prayer, name] : names) {
        ExpectNext(At(kDay, times[prayer] - 1), prayer, name + " at " + LongTime(times[prayer]), 1);
    }
}

TEST(CtlTodayAt, TheSecondOfAPrayerIsNoLongerAhead) {
    const auto times = SecondsOf(kDay);
    ExpectNext(At(kDay, times[kAsr]), kMaghrib, "Maghrib at " + LongTime(times[kMaghrib]),
               times[kMaghrib] - times[kAsr]);
}

TEST(CtlTodayAt, AfterIshaTomorrowsFajrIsNext) {
    const int evening = SecondsOf(kDay)[kIsha];
    const int fajr = SecondsOf("2026-11-22")[kFajr];
    ExpectNext(At(kDay, evening), kFajr, "Fajr at " + LongTime(fajr),
               kSecondsADay - evening + fajr);
}

TEST(CtlTodayAt, LastSecondOfADayLeavesTheTimeToFajrAndASecond) {
    const int fajr = SecondsOf("2026-11-22")[kFajr];
    ExpectNext(At(kDay, kSecondsADay - 1), kFajr, "Fajr at " + LongTime(fajr), fajr + 1);
}

// The row behind the last of a common year is one that no calculation has filled.
TEST(CtlTodayAt, LastEveningOfACommonYearTellsTheEmptyRow) {
    ExpectNext(At("2026-12-31", kSecondsADay - 1800), kFajr, "Fajr at 12:00:00 AM", 1800);
}

TEST(CtlTodayAt, LastEveningOfALeapYearTellsItsOwnFajr) {
    const int fajr = SecondsOf("2028-12-31")[kFajr];
    ExpectNext(At("2028-12-31", kSecondsADay - 1800), kFajr, "Fajr at " + LongTime(fajr),
               1800 + fajr);
}

TEST(CtlTodayAt, FirstAndLastDayOfAYearReadTheirOwnRows) {
    const Json times = JsonOf(Ctl(),
                              "year --latitude 21.43 --longitude 39.83 --zone 3 --fajr 18"
                              " --isha 18 --asr 1 --year 2028")["times"];
    EXPECT_EQ(At("2028-01-01", 0)["hours"], times[0]);
    EXPECT_EQ(At("2028-12-31", 0)["hours"], times[365]);
}

TEST(CtlTodayAt, HijriDayTurnsAtMidnight) {
    EXPECT_EQ(At("2026-11-20", kSecondsADay - 1)["hijri"]["day"], 9);
    EXPECT_EQ(At("2026-11-21", 0)["hijri"]["day"], 10);
}

}  // namespace
}  // namespace horavex
