#include <cmath>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

#include "lib/library.h"

namespace horavex {
namespace {

constexpr std::int64_t kNewYear2026 = 1767225600;  // in Greenwich
constexpr std::int64_t kDay = 86400;

horavex_method Method(const char* key) {
    horavex_method method = HORAVEX_METHOD_INIT;
    EXPECT_EQ(horavex_method_take(&method, key, nullptr), HORAVEX_OK);
    return method;
}

TEST(Year, HasItsDays) {
    EXPECT_EQ(horavex_year_days(CairoYear().get()), 365);
    EXPECT_EQ(horavex_year_days(MakeYear(Cairo(), HORAVEX_METHOD_INIT, 2028).get()), 366);
}

TEST(Year, DaysOutsideItAreRefused) {
    const Year year = CairoYear();
    horavex_day day = HORAVEX_DAY_INIT;
    EXPECT_EQ(horavex_year_day(year.get(), 0, &day, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_day(year.get(), 366, &day, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_day(year.get(), 365, &day, nullptr), HORAVEX_OK);
}

TEST(Year, DayHasBothDates) {
    const horavex_day day = DayOf(CairoYear(), 213);
    EXPECT_EQ(day.day_of_year, 213);
    EXPECT_EQ(day.date.year, 2026);
    EXPECT_EQ(day.date.month, 8);
    EXPECT_EQ(day.date.day, 1);
    EXPECT_EQ(day.hijri.year, 1448);
    EXPECT_EQ(day.hijri.month, 2);
    EXPECT_EQ(day.hijri.day, 18);
}

TEST(Year, HijriDateIsThatOfTheCalendarAskedFor) {
    horavex_method method = HORAVEX_METHOD_INIT;
    method.hijri = HORAVEX_ARITHMETIC;
    EXPECT_EQ(DayOf(MakeYear(Cairo(), method, 2026), 213).hijri.day, 16);
    method.hijri_adjustment = -2;
    EXPECT_EQ(DayOf(MakeYear(Cairo(), method, 2026), 213).hijri.day, 14);
}

TEST(Year, MomentsFollowEachOther) {
    const Year year = CairoYear();
    for (int number = 1; number <= 365; ++number) {
        const horavex_day day = DayOf(year, number);
        for (int prayer = HORAVEX_SHUROOQ; prayer <= HORAVEX_ISHA; ++prayer) {
            EXPECT_GT(day.moments[prayer].hours, day.moments[prayer - 1].hours) << number;
        }
    }
}

// Clocks in Cairo are put forward on 24 April 2026, day 114.
TEST(Year, UnixTimesAndHoursAreTheSameMoments) {
    const Year year = CairoYear();
    for (const int number : {1, 113, 114, 200, 365}) {
        const horavex_day day = DayOf(year, number);
        for (const horavex_moment& moment : day.moments) {
            const auto local = static_cast<double>(moment.unix_time + moment.utc_offset -
                                                   kNewYear2026 - (number - 1) * kDay);
            EXPECT_NEAR(local, moment.hours * 3600.0, 0.51) << number;
        }
        EXPECT_EQ(day.moments[HORAVEX_ZUHR].utc_offset,
                  number < 114 || number > 303 ? 7200 : 10800);
    }
}

TEST(Year, DaylightSavingByHandCounts) {
    horavex_place place = Cairo();
    place.zone = nullptr;
    place.utc_offset = 2.0;
    const Year plain = MakeYear(place, HORAVEX_METHOD_INIT, 2026);
    place.dst_first_day = 100;
    place.dst_last_day = 200;
    const Year summer = MakeYear(place, HORAVEX_METHOD_INIT, 2026);
    for (const int number : {99, 100, 200, 201}) {
        const horavex_moment before = DayOf(plain, number).moments[HORAVEX_ASR];
        const horavex_moment with = DayOf(summer, number).moments[HORAVEX_ASR];
        const bool shifted = number >= 100 && number <= 200;
        EXPECT_NEAR(with.hours - before.hours, shifted ? 1.0 : 0.0, 1e-9) << number;
        EXPECT_EQ(with.unix_time, before.unix_time) << number;
        EXPECT_EQ(with.utc_offset, shifted ? 10800 : 7200) << number;
    }
}

TEST(Year, MinutesAndIntervalsCount) {
    horavex_method method = HORAVEX_METHOD_INIT;
    method.minutes[HORAVEX_ZUHR] = 5;
    method.isha_interval = 90;
    const horavex_day day = DayOf(MakeYear(Cairo(), method, 2026), 32);
    EXPECT_NEAR(day.moments[HORAVEX_ZUHR].hours,
                DayOf(CairoYear(), 32).moments[HORAVEX_ZUHR].hours + 5.0 / 60.0, 1e-9);
    EXPECT_NEAR(day.moments[HORAVEX_ISHA].hours - day.moments[HORAVEX_MAGHRIB].hours, 1.5, 1e-9);
    EXPECT_EQ(day.moments[HORAVEX_ISHA].by, HORAVEX_BY_INTERVAL);
    EXPECT_EQ(day.moments[HORAVEX_MAGHRIB].by, HORAVEX_BY_SUN);
}

// Ramadan of 1447 begins on 18 February 2026, day 49, as published.
TEST(Year, RamadanHasAnIntervalOfItsOwn) {
    const Year year = MakeYear(Place(21.42, 39.83, "Asia/Riyadh"), Method("umm-al-qura"), 2026);
    const auto interval = [&](int number) {
        const horavex_day day = DayOf(year, number);
        return day.moments[HORAVEX_ISHA].hours - day.moments[HORAVEX_MAGHRIB].hours;
    };
    EXPECT_NEAR(interval(48), 1.5, 1e-9);
    EXPECT_NEAR(interval(49), 2.0, 1e-9);
}

TEST(Year, RuleOfTheNightsIsTold) {
    horavex_method method = HORAVEX_METHOD_INIT;
    method.nights = HORAVEX_NIGHTS_MIDDLE;
    const Year year = MakeYear(Tromso(), method, 2026);
    EXPECT_EQ(DayOf(year, 172).moments[HORAVEX_ISHA].by, HORAVEX_BY_RULE);
    EXPECT_EQ(DayOf(year, 80).moments[HORAVEX_SHUROOQ].by, HORAVEX_BY_SUN);
}

/// The year's days, byte by byte.
std::vector<horavex_day> DaysOf(const Year& year) {
    std::vector<horavex_day> days;
    for (int number = 1; number <= horavex_year_days(year.get()); ++number) {
        days.push_back(DayOf(year, number));
    }
    return days;
}

bool AreSame(const std::vector<horavex_day>& one, const std::vector<horavex_day>& other) {
    return one.size() == other.size() &&
           std::memcmp(one.data(), other.data(), one.size() * sizeof one[0]) == 0;
}

TEST(Year, EightThreadsHaveWhatOneHas) {
    constexpr int kThreads = 8;
    const auto work = [](int thread) {
        horavex_method method = Method(thread % 2 == 0 ? "egypt" : "umm-al-qura");
        method.nights = HORAVEX_NIGHTS_MIDDLE;
        return DaysOf(MakeYear(thread < 4 ? Cairo() : Tromso(), method, 2020 + thread));
    };
    std::vector<std::vector<horavex_day>> found(kThreads);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back(
            [&, thread] { found[static_cast<std::size_t>(thread)] = work(thread); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (int thread = 0; thread < kThreads; ++thread) {
        EXPECT_TRUE(AreSame(found[static_cast<std::size_t>(thread)], work(thread))) << thread;
    }
}

TEST(Year, ManyThreadsReadOne) {
    const Year year = CairoYear();
    const std::vector<horavex_day> expected = DaysOf(year);
    std::vector<char> same(8, 0);
    std::vector<std::thread> threads;
    for (char& one : same) {
        threads.emplace_back([&] { one = AreSame(DaysOf(year), expected) ? 1 : 0; });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(same, testing::Each(1));
}

horavex_next NextAfter(const Year& year, std::int64_t unixTime) {
    horavex_next next = HORAVEX_NEXT_INIT;
    EXPECT_EQ(horavex_year_next(year.get(), unixTime, &next, nullptr), HORAVEX_OK);
    return next;
}

TEST(Next, IsEachPrayerOfADayInItsTurn) {
    const Year year = CairoYear();
    const horavex_day day = DayOf(year, 200);
    std::int64_t now = day.moments[HORAVEX_FAJR].unix_time;
    for (int prayer = HORAVEX_ZUHR; prayer <= HORAVEX_ISHA; ++prayer) {  // none waits for sunrise
        const horavex_next next = NextAfter(year, now);
        EXPECT_EQ(next.prayer, prayer);
        EXPECT_EQ(next.day, 0);
        EXPECT_EQ(next.unix_time, day.moments[prayer].unix_time);
        now = next.unix_time;
    }
    const horavex_next fajr = NextAfter(year, now);
    EXPECT_EQ(fajr.prayer, HORAVEX_FAJR);
    EXPECT_EQ(fajr.day, 1);
    EXPECT_EQ(fajr.unix_time, DayOf(year, 201).moments[HORAVEX_FAJR].unix_time);
}

TEST(Next, IsYesterdaysIshaBehindMidnight) {
    horavex_method method = HORAVEX_METHOD_INIT;
    method.nights = HORAVEX_NIGHTS_MIDDLE;
    const Year year = MakeYear(Place(60.17, 24.94, "Europe/Helsinki"), method, 2026);
    const horavex_moment isha = DayOf(year, 172).moments[HORAVEX_ISHA];
    ASSERT_GT(isha.hours, 24.0);
    const horavex_next next = NextAfter(year, isha.unix_time - 60);
    EXPECT_EQ(next.prayer, HORAVEX_ISHA);
    EXPECT_EQ(next.day, -1);
    EXPECT_EQ(next.unix_time, isha.unix_time);
}

TEST(Next, CountsOverAClockThatIsPutForward) {
    const Year year = CairoYear();
    const horavex_moment isha = DayOf(year, 113).moments[HORAVEX_ISHA];
    EXPECT_EQ(NextAfter(year, isha.unix_time).unix_time,
              DayOf(year, 114).moments[HORAVEX_FAJR].unix_time);
}

TEST(Next, IsRefusedOutsideTheYear) {
    const Year year = CairoYear();
    horavex_next next = HORAVEX_NEXT_INIT;
    const std::int64_t begin = kNewYear2026 - 7200;  // of the clock in Cairo
    EXPECT_EQ(horavex_year_next(year.get(), begin, &next, nullptr), HORAVEX_OK);
    EXPECT_EQ(horavex_year_next(year.get(), begin - 1, &next, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_next(year.get(), begin + 365 * kDay, &next, nullptr),
              HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_next(year.get(), INT64_MAX, &next, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_year_next(year.get(), INT64_MIN, &next, nullptr), HORAVEX_BAD_ARGUMENT);
}

TEST(Methods, AllCanBeTakenByTheirKeys) {
    std::size_t count = 0;
    for (; horavex_method_key(count) != nullptr; ++count) {
        horavex_method method = HORAVEX_METHOD_INIT;
        EXPECT_EQ(horavex_method_take(&method, horavex_method_key(count), nullptr), HORAVEX_OK);
        EXPECT_NE(horavex_method_name(count), nullptr);
    }
    EXPECT_EQ(count, 27U);
    EXPECT_EQ(horavex_method_name(count), nullptr);
}

TEST(Methods, LeaveOpenWhatTheAuthorityDoes) {
    horavex_method method = HORAVEX_METHOD_INIT;
    method.asr_shadow = 2;
    method.isha_angle = 16.0;
    method.nights = HORAVEX_NIGHTS_ANGLE;
    ASSERT_EQ(horavex_method_take(&method, "gulf", nullptr), HORAVEX_OK);
    EXPECT_EQ(method.fajr_angle, 19.5);
    EXPECT_EQ(method.isha_interval, 90);
    EXPECT_EQ(method.asr_shadow, 2);
    EXPECT_EQ(method.isha_angle, 16.0);
    EXPECT_EQ(method.nights, HORAVEX_NIGHTS_ANGLE);
    ASSERT_EQ(horavex_method_take(&method, "malaysia", nullptr), HORAVEX_OK);
    EXPECT_EQ(method.asr_shadow, 1);
    EXPECT_EQ(method.minutes[HORAVEX_ZUHR], 1);
    EXPECT_EQ(method.isha_interval, 0);
}

}  // namespace
}  // namespace horavex
