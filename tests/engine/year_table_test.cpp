#include "engine/year_table.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "engine/angle.h"
#include "engine/sample_year.h"
#include "engine/solar_event.h"

namespace horavex {
namespace {

struct YearTableTest : EngineTest {
    /// Row by row, the hours that the daylight setting has added to all columns alike.
    std::array<double, kYearRows> ShiftsAgainst(
        const std::array<std::array<double, kYearRows>, kPrayerCount>& plain) {
        std::array<double, kYearRows> shifts{};
        for (std::size_t row = 0; row < kYearRows; ++row) {
            shifts[row] = Times[0][row] - plain[0][row];
            for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
                EXPECT_DOUBLE_EQ(Times[prayer][row], plain[prayer][row] + std::round(shifts[row]))
                    << row;
            }
        }
        return shifts;
    }

    /// A run for Cairo, near whose end another hand writes a time into row 10 of the table.
    void RunWithForeignTime(Prayer prayer, double hours) {
        Cairo();
        Calculate(2001);
        ComputeYearTimes(0, 365, [=](double percent) {
            if (percent > 99.0) {
                Times[prayer][10] = hours;
            }
        });
    }

    /// The rows that a daylight setting shifts, as 0-based row numbers.
    std::vector<std::size_t> ShiftedRows(std::int16_t start, std::int16_t end) {
        Calculate(2001);
        const auto plain = Times;
        Daylight(start, end);
        Calculate(2001);
        const auto shifts = ShiftsAgainst(plain);
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < kYearRows; ++row) {
            if (std::round(shifts[row]) == 1.0) {
                rows.push_back(row);
            }
        }
        return rows;
    }
};

std::vector<std::size_t> RowsFromTo(std::size_t first, std::size_t last) {
    std::vector<std::size_t> rows;
    for (std::size_t row = first; row <= last; ++row) {
        rows.push_back(row);
    }
    return rows;
}

TEST_F(YearTableTest, CairoHasTheWorkedTimes) {
    Cairo();
    Calculate(2001);
    const PrayerRow wanted = {4.5168, 5.9646, 12.0366, 15.4986, 18.1163, 19.4094};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(Times[prayer][79], wanted[prayer], 5e-5) << prayer;
    }
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_FALSE(LastYearFailure);
}

TEST_F(YearTableTest, SecondAsrRatioMovesAsrAlone) {
    Cairo();
    Calculate(2001);
    const PrayerRow first = TimesOfRow(79);
    Settings.AsrRatio = 2.0;
    Calculate(2001);
    PrayerRow second = TimesOfRow(79);
    EXPECT_NEAR(second[kAsr], 16.4024, 5e-5);
    second[kAsr] = first[kAsr];
    EXPECT_EQ(second, first);
}

TEST_F(YearTableTest, ColumnsLieContiguously) {
    EXPECT_EQ(&Times[1][0] - &Times[0][0], 366);
    EXPECT_EQ(&Times[5][7] - &Times[0][0], 5 * 366 + 7);
}

TEST_F(YearTableTest, CommonYearNeverTouchesTheLastRow) {
    Cairo();
    for (auto& column : Times) {
        column[365] = 77.0;
    }
    Calculate(2001);
    EXPECT_EQ(TimesOfRow(365), (PrayerRow{77.0, 77.0, 77.0, 77.0, 77.0, 77.0}));
    EXPECT_GT(Times[kZuhr][364], 11.0);
}

TEST_F(YearTableTest, LeapYearFillsTheLastRow) {
    Cairo();
    Calculate(2024);
    EXPECT_NEAR(Times[kZuhr][365], 11.98, 0.05);
}

TEST_F(YearTableTest, SecondRunStartsAnew) {
    Cairo();
    Calculate(2001);
    const auto once = Times;
    Calculate(2001);
    EXPECT_EQ(Times, once);
}

TEST_F(YearTableTest, TwilightOutsideTheDayStopsTheRun) {
    London(18.0, 17.0);
    for (auto& column : Times) {
        column[143] = 77.0;
    }
    Calculate(2001);
    EXPECT_EQ(CalcFailed, -1);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'A');
    EXPECT_EQ(LastYearFailure->row, 142);
    EXPECT_EQ(Times[kFajr][142], NoEvent);
    EXPECT_NE(Times[kFajr][141], NoEvent);
    EXPECT_NE(Times[kIsha][142], 0.0) << "a failing row holds all six values";
    EXPECT_EQ(Times[kFajr][143], 77.0) << "later rows keep what the run before left";
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(host.qiblas, 0);
}

TEST_F(YearTableTest, EarlyFajrStopsTheRun) {
    Cairo();
    Settings.TimeZone = -2.0;  // four hours behind the sun: Fajr at half past midnight in March
    Calculate(2001);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'A');
    const auto row = static_cast<std::size_t>(LastYearFailure->row);
    EXPECT_LT(Times[kFajr][row], 0.17);
    EXPECT_GE(Times[kFajr][row - 1], 0.17);
}

TEST_F(YearTableTest, LateIshaStopsTheRun) {
    Cairo();
    Settings.TimeZone = 6.0;
    Calculate(2001);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'A');
    const auto row = static_cast<std::size_t>(LastYearFailure->row);
    EXPECT_GT(Times[kIsha][row], 23.83);
    EXPECT_LE(Times[kIsha][row - 1], 23.83);
}

TEST_F(YearTableTest, ShortDawnStopsTheRun) {
    Cairo();
    Angles(1.0, 17.5);
    Calculate(2001);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'B');
    EXPECT_EQ(LastYearFailure->row, 0);
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_GE(Times[kFajr][0] + 0.25, Times[kShurooq][0]);
}

TEST_F(YearTableTest, ZeroRecordIsRejectedForItsDawn) {
    Place(3005, 3125, 2.0);
    Calculate(2001);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'B');
}

// With Isha at 22.7 at the latest, the daylight hour alone carries it over the last limit.
TEST_F(YearTableTest, LimitAfterTheDaylightHourStopsTheRun) {
    Cairo();
    Settings.TimeZone = 4.5;
    Calculate(2001);
    ASSERT_EQ(CalcFailed, 0);
    Daylight(91, 300);
    Calculate(2001);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'C');
    const auto row = static_cast<std::size_t>(LastYearFailure->row);
    EXPECT_GT(Times[kIsha][row], 23.99);
    EXPECT_LE(Times[kIsha][row - 1], 23.99);
    EXPECT_GE(row, 90U);
    EXPECT_GT(Times[kZuhr][299], 15.0) << "the shift itself is complete";
}

// The narrow limits leave through what the wide ones refuse only where Isha wrapped past
// midnight in the check of the day; with daylight saving off the wide ones never fire alone, so
// they show on a table that another hand has changed under the run.
TEST_F(YearTableTest, LimitAfterTheShiftRunsWithDaylightSavingOff) {
    RunWithForeignTime(kIsha, 23.995);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'C');
    EXPECT_EQ(LastYearFailure->row, 10);
}

TEST_F(YearTableTest, FajrBeforeATenthOfAnHourStopsTheRunAfterTheShift) {
    RunWithForeignTime(kFajr, 0.0999);
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'C');
    EXPECT_EQ(LastYearFailure->row, 10);
}

TEST_F(YearTableTest, LimitsAfterTheShiftAreThemselvesAllowed) {
    RunWithForeignTime(kFajr, 0.1);
    EXPECT_FALSE(LastYearFailure);
    RunWithForeignTime(kIsha, 23.99);
    EXPECT_FALSE(LastYearFailure);
}

/// Looks at the flag while the box is up, which is when the clock can look at it too.
struct FlagDialogs : RecordingDialogs {
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override {
        RecordingDialogs::ShowMessage(text, title, icon);
        flagWhileShown = CalcFailed;
    }

    std::int16_t flagWhileShown = -7;
};

TEST_F(YearTableTest, MessageComesBeforeTheFlag) {
    FlagDialogs dialogs;
    const Platform& ports = Ports();
    const Platform watched{ports.clock,     ports.eventLoop,   ports.files,     ports.programFolder,
                           ports.formats,   dialogs,           ports.registry,  ports.instanceGuard,
                           ports.face,      ports.windows,     ports.tray,      ports.shell,
                           ports.network,   ports.athanFace,   ports.audioFile, ports.audioPlayer,
                           ports.zoneRules, ports.whereabouts, ports.notices,   ports.mediaPlayers,
                           ports.session,   ports.almanac,     ports.broadcast};
    InstallPlatform(&watched);
    London(18.0, 17.0);
    Calculate(2001);
    InstallPlatform(&ports);
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.flagWhileShown, 0);
    EXPECT_EQ(CalcFailed, -1);
}

TEST_F(YearTableTest, DaylightHourCoversStartToEnd) {
    Cairo();
    EXPECT_EQ(ShiftedRows(91, 300), RowsFromTo(90, 299));
}

TEST_F(YearTableTest, SouthernSummerWrapsOverTheYearsEnd) {
    Cairo();
    auto wanted = RowsFromTo(0, 90);
    const auto autumn = RowsFromTo(299, 364);
    wanted.insert(wanted.end(), autumn.begin(), autumn.end());
    EXPECT_EQ(ShiftedRows(300, 91), wanted);
}

TEST_F(YearTableTest, EqualDaysShiftThatDay) {
    Cairo();
    EXPECT_EQ(ShiftedRows(100, 100), RowsFromTo(99, 99));
}

TEST_F(YearTableTest, OnlyTheValueOneEnablesDaylightSaving) {
    Cairo();
    Calculate(2001);
    const auto plain = Times;
    Daylight(91, 300);
    for (const std::int16_t value : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{2}}) {
        Settings.DstEnabled = value;
        Calculate(2001);
        EXPECT_EQ(Times, plain) << value;
    }
}

TEST_F(YearTableTest, DaylightDayOutsideTheTableIsAFault) {
    Cairo();
    Daylight(0, 100);
    EXPECT_THROW(Calculate(2001), BoundsFault);
    Daylight(100, 400);
    EXPECT_THROW(Calculate(2001), BoundsFault);
    Daylight(-32768, 100);
    EXPECT_THROW(Calculate(2001), OverflowFault);
}

TEST_F(YearTableTest, ProgressRunsFromNothingToAll) {
    Cairo();
    Calculate(2001);
    ASSERT_EQ(host.percents.size(), 365U);
    EXPECT_EQ(host.percents.front(), 0.0);
    EXPECT_EQ(host.percents.back(), 100.0);
    EXPECT_DOUBLE_EQ(host.percents[91], 25.0);
    EXPECT_TRUE(std::is_sorted(host.percents.begin(), host.percents.end()));
}

TEST_F(YearTableTest, SettingChangedWhileTheBarGrowsCountsFromThatDayOn) {
    Cairo();
    Calculate(2001);
    const YearTimes first = Times;
    ComputeYearTimes(0, 365,
                     [](double percent) { Settings.AsrRatio = percent < 50.0 ? 1.0 : 2.0; });
    EXPECT_EQ(TimesOfRow(181), RowOf(first, 181));
    EXPECT_GT(Times[kAsr][182], first[kAsr][182] + 0.5);
}

TEST_F(YearTableTest, ZoneChangedWhileTheBarGrowsCountsFromThatDayOnToo) {
    Cairo();
    Calculate(2001);
    const YearTimes first = Times;
    ComputeYearTimes(0, 365,
                     [](double percent) { Settings.TimeZone = percent < 50.0 ? 2.0 : 3.0; });
    EXPECT_EQ(TimesOfRow(181), RowOf(first, 181));
    EXPECT_NEAR(Times[kZuhr][182], first[kZuhr][182] + 1.0, 0.001);
}

TEST_F(YearTableTest, MissingProgressReportsNothing) {
    Cairo();
    Calculate(2001);
    const auto withReport = Times;
    ComputeYearTimes(0, 365, nullptr);
    EXPECT_EQ(Times, withReport);
    EXPECT_EQ(host.percents.size(), 365U);
}

// An Isha that has wrapped is not recognised: 0.4 passes the limits, becomes the next day's
// guess, and that day's Isha comes out on the morning branch.
TEST_F(YearTableTest, WrappedIshaGoesOnAlongTheMorningBranch) {
    Cairo();
    Settings.TimeZone = 7.0;
    Angles(10.0, 17.5);
    CurrentYear = 2001;
    RecalculateYear();  // gives up early, and leaves the year constants behind
    const auto isha = [](std::int16_t day, double guess) {
        return EventTime(CurrentYearConstants, PresentPlace(), day, DegToRad(107.5), guess);
    };
    EXPECT_NEAR(isha(79, 20.0), 0.4, 0.05);
    ComputeYearTimes(79, 82, nullptr);
    EXPECT_EQ(Times[kIsha][79], isha(80, isha(79, 20.0)));
    EXPECT_NEAR(Times[kIsha][79], 9.68, 0.05) << "the morning's depression of 17.5 degrees";
    EXPECT_NEAR(Times[kIsha][81], 9.63, 0.05);
}

TEST_F(YearTableTest, GuessOfTheDayBeforeTheFirstWarmsUp) {
    Cairo();
    Calculate(2001);
    const PrayerRow inTheYear = TimesOfRow(79);
    ComputeYearTimes(79, 80, nullptr);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(TimesOfRow(79)[prayer], inTheYear[prayer], 1e-4) << prayer;
    }
}

struct TodayTimesTest : YearTableTest {
    void Year(std::int16_t year) {
        CurrentYear = year;
        CalcFailed = 0;
        RecalculateYear();
        platform.dialogs.messages.clear();
        CalcFailed = 0;
    }
};

TEST_F(TodayTimesTest, AgreeWithTheTable) {
    Cairo();
    Year(2001);
    const auto before = Times;
    const PrayerRow today = ComputeTodayTimes(PresentInputs(), DateSerial(2001, 3, 21));
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(today[prayer], Times[prayer][79], 1e-4);
    }
    EXPECT_EQ(Times, before) << "the table is not touched";
}

TEST_F(TodayTimesTest, DaylightHourLiesStrictlyBetweenTheDays) {
    Cairo();
    Year(2001);
    const auto zuhrOfDay = [](int day) {
        return ComputeTodayTimes(PresentInputs(), DateSerial(2001, 1, 1) + day - 1)[kZuhr];
    };
    Daylight(91, 300);
    EXPECT_NEAR(zuhrOfDay(91), 12.0, 0.3);
    EXPECT_NEAR(zuhrOfDay(92), 13.0, 0.3);
    EXPECT_NEAR(zuhrOfDay(299), 12.7, 0.3);
    EXPECT_NEAR(zuhrOfDay(300), 11.7, 0.3);
}

TEST_F(TodayTimesTest, SouthernSummerIsNotKnown) {
    Cairo();
    Year(2001);
    Daylight(300, 91);
    EXPECT_NEAR(ComputeTodayTimes(PresentInputs(), DateSerial(2001, 1, 10))[kZuhr], 12.03, 0.05);
}

TEST_F(TodayTimesTest, NarrowLimitsHoldAfterTheShift) {
    Cairo();
    Settings.TimeZone = 4.5;
    Year(2001);
    Date day = DateSerial(2001, 4, 1);
    while (ComputeTodayTimes(PresentInputs(), day)[kIsha] < 22.85) {
        day += 1.0;
    }
    Daylight(60, 300);
    const PrayerRow today = ComputeTodayTimes(PresentInputs(), day);
    EXPECT_GT(today[kIsha], 23.83);
    EXPECT_LT(today[kIsha], 23.99) << "the year's wider limit would let it pass";
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'C');
    EXPECT_EQ(CalcFailed, -1);
}

TEST_F(TodayTimesTest, LimitsOfTheDayComeFirst) {
    London(18.0, 17.0);
    Year(2001);
    ComputeTodayTimes(PresentInputs(), DateSerial(2001, 6, 21));
    ASSERT_TRUE(LastYearFailure);
    EXPECT_EQ(LastYearFailure->message, 'A');
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
}

TEST_F(TodayTimesTest, FirstOfJanuaryWorks) {
    Cairo();
    Year(2001);
    EXPECT_NEAR(ComputeTodayTimes(PresentInputs(), DateSerial(2001, 1, 1))[kZuhr], Times[kZuhr][0],
                1e-4);
}

TEST_F(YearTableTest, DaylightDaysAreThoseOfTheShift) {
    Cairo();
    const auto day = [](int number) { return DateSerial(2001, 1, 1) + number - 1 + 0.7; };
    EXPECT_FALSE(IsDaylightDay(day(100)));
    Daylight(91, 300);
    EXPECT_FALSE(IsDaylightDay(day(90)));
    EXPECT_TRUE(IsDaylightDay(day(91)));
    EXPECT_TRUE(IsDaylightDay(day(300)));
    EXPECT_FALSE(IsDaylightDay(day(301)));
    Daylight(300, 91);
    EXPECT_TRUE(IsDaylightDay(day(91)));
    EXPECT_FALSE(IsDaylightDay(day(92)));
    EXPECT_FALSE(IsDaylightDay(day(299)));
    EXPECT_TRUE(IsDaylightDay(day(300)));
}

}  // namespace
}  // namespace horavex
