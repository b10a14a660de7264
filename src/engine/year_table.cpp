#include "engine/year_table.h"

#include <cmath>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/equation_of_time.h"
#include "engine/limit_message.h"
#include "engine/solar_event.h"
#include "store/settings_record.h"

namespace horavex {

std::array<std::array<double, kYearRows>, kPrayerCount> Times{};
std::int16_t CalcFailed = 0;
std::optional<YearFailure> LastYearFailure;

namespace {

const ProgramStateReset reset([] {
    Times = {};
    CalcFailed = 0;
    LastYearFailure.reset();
});

constexpr PrayerRow kFirstGuess = {4.0, 6.0, 0.0, 15.0, 18.0, 20.0};  // hours; Zuhr has none
constexpr double kHorizonZenith = 90.83;  // degrees: refraction and the sun's semi-diameter
constexpr double kShortestDawn = 0.25;    // hours between Fajr and Shurooq

/// The prayers that an event of the sun makes, in the order in which a day is worked out.
constexpr Prayer kTimedPrayers[] = {kShurooq, kAsr, kMaghrib, kFajr, kIsha};

struct Limits {
    double earliestFajr;  // hours
    double latestIsha;    // hours
};
constexpr Limits kDayLimits = {0.17, 23.83};
constexpr Limits kShiftedLimits = {0.1, 23.99};  // wider, once the daylight hour is in

/// Working state of one run: yesterday's answer is the moment at which today's sun is taken.
struct Run {
    PrayerRow guess = kFirstGuess;
    PrayerRow zenith{};  // radians
};

Run StartRun() {
    Run run;
    run.zenith[kFajr] = DegToRad(Settings.FajrAngle + 90.0);
    run.zenith[kShurooq] = DegToRad(kHorizonZenith);
    run.zenith[kMaghrib] = run.zenith[kShurooq];
    run.zenith[kIsha] = DegToRad(IshaAngle + 90.0);
    return run;
}

double SolveEvent(Run& run, std::int16_t day, Prayer prayer) {
    const double t = EventTime(day, run.zenith[prayer], run.guess[prayer]);
    run.guess[prayer] = t < 24.0 ? t : kFirstGuess[prayer];
    return t;
}

/// day: 1 for the first of January; 0 warms the guesses up on the last day of the year before.
PrayerRow SolveDay(Run& run, std::int16_t day) {
    PrayerRow times{};
    double gap = 0.0;
    times[kZuhr] = SolarTransit(day, gap);
    run.zenith[kAsr] = std::atan(std::tan(gap) + Settings.AsrRatio);
    for (const Prayer prayer : kTimedPrayers) {
        times[prayer] = SolveEvent(run, day, prayer);
    }
    return times;
}

void StoreRow(std::size_t row, const PrayerRow& times) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        Times[prayer][row] = times[prayer];
    }
}

bool WithinLimits(const PrayerRow& times, const Limits& limits) {
    return !(times[kFajr] < limits.earliestFajr) && !(times[kIsha] > limits.latestIsha);
}

bool TwilightFitsDay(const PrayerRow& times) {
    return times[kFajr] != NoEvent && times[kIsha] != NoEvent && WithinLimits(times, kDayLimits);
}

void GiveUp(char message, std::int16_t row) {
    ShowLimitMessage(message);
    LastYearFailure = {message, row};
    CalcFailed = -1;
}

bool PassesDayLimits(const PrayerRow& times, std::int16_t row) {
    if (!TwilightFitsDay(times)) {
        GiveUp('A', row);
        return false;
    }
    if (!(times[kFajr] + kShortestDawn < times[kShurooq])) {
        GiveUp('B', row);
        return false;
    }
    return true;
}

void ShiftRows(std::int16_t first, std::int16_t last) {
    for (int row = first; row <= last; ++row) {
        if (row < 0 || row >= static_cast<int>(kYearRows)) {
            throw BoundsFault("a day of daylight saving lies outside the year");
        }
        for (auto& column : Times) {
            column[static_cast<std::size_t>(row)] += 1.0;
        }
    }
}

void AddDaylightHour(std::int16_t endDay) {
    const std::int16_t firstRow = SubtractInt16(Settings.DstStart, 1);
    const std::int16_t lastRow = SubtractInt16(Settings.DstEnd, 1);
    if (Settings.DstStart <= Settings.DstEnd) {
        ShiftRows(firstRow, lastRow);
    } else {  // a southern summer
        ShiftRows(0, lastRow);
        ShiftRows(firstRow, SubtractInt16(endDay, 1));
    }
}

bool SolveRows(std::int16_t firstDay, std::int16_t endDay, const ProgressReport& report) {
    Run run = StartRun();
    SolveDay(run, firstDay);
    const Date newYear = DateSerial(CurrentYear, 1, 1);
    for (std::int16_t row = firstDay; row < endDay; ++row) {
        EquationOfTime(newYear + row);  // worked out each day; no time depends on it
        if (report) {
            report(row * 100.0 / (endDay - 1));
        }
        const PrayerRow times = SolveDay(run, AddInt16(row, 1));
        StoreRow(static_cast<std::size_t>(row), times);
        if (!PassesDayLimits(times, row)) {
            return false;
        }
    }
    return true;
}

void CheckShiftedRows(std::int16_t firstDay, std::int16_t endDay) {
    for (std::int16_t row = firstDay; row < endDay; ++row) {
        if (!WithinLimits(TimesOfRow(static_cast<std::size_t>(row)), kShiftedLimits)) {
            GiveUp('C', row);
            return;
        }
    }
}

}  // namespace

PrayerRow TimesOfRow(std::size_t row) {
    PrayerRow times{};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        times[prayer] = Times[prayer][row];
    }
    return times;
}

void ComputeYearTimes(std::int16_t firstDay, std::int16_t endDay, const ProgressReport& report) {
    LastYearFailure.reset();
    if (!SolveRows(firstDay, endDay, report)) {
        return;
    }
    if (Settings.DstEnabled == 1) {
        AddDaylightHour(endDay);
    }
    // Runs with daylight saving off too.
    CheckShiftedRows(firstDay, endDay);
}

bool IsDaylightDay(Date date, const SettingsRecord& settings) {
    if (settings.DstEnabled != 1) {
        return false;
    }
    const double day = std::floor(date) - DateSerial(CivilFromDate(date).year, 1, 1) + 1.0;
    const bool started = day >= settings.DstStart;
    const bool over = day > settings.DstEnd;
    return settings.DstStart <= settings.DstEnd ? started && !over : started || !over;
}

bool IsDaylightDay(Date date) {
    return IsDaylightDay(date, Settings);
}

PrayerRow ComputeTodayTimes(Date today) {
    LastYearFailure.reset();
    const std::int16_t row = TruncateToInt16(today - DateSerial(CurrentYear, 1, 1));
    const std::int16_t day = AddInt16(row, 1);
    Run run = StartRun();
    SolveDay(run, row);
    EquationOfTime(today);
    PrayerRow times = SolveDay(run, day);
    if (!PassesDayLimits(times, row)) {
        return times;
    }
    if (Settings.DstEnabled == 1 && day > Settings.DstStart && day < Settings.DstEnd) {
        for (double& time : times) {
            time += 1.0;
        }
    }
    if (!WithinLimits(times, kDayLimits)) {
        GiveUp('C', row);
    }
    return times;
}

}  // namespace horavex
