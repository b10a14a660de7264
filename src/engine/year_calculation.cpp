#include "engine/year_calculation.h"

#include <cmath>

#include "base/date.h"
#include "base/fault.h"
#include "base/int16.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/equation_of_time.h"
#include "engine/solar_event.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr PrayerRow kFirstGuess = {4.0, 6.0, 0.0, 15.0, 18.0, 20.0};  // hours; Zuhr has none
constexpr double kShortestDawn = 0.25;  // hours between Fajr and Shurooq

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
    const YearConstants& constants;
    const YearInputs& inputs;
    PrayerRow cosZenith{};
    PrayerRow guess = kFirstGuess;
    YearPlace place = inputs.place;  // of eventPlace; that of the inputs may change in a run
    EventPlace eventPlace = EventPlaceOf(place);
};

Run StartRun(const YearConstants& constants, const YearInputs& inputs) {
    Run run{constants, inputs};
    run.cosZenith[kFajr] = std::cos(DegToRad(inputs.method.fajrAngle + 90.0));
    run.cosZenith[kShurooq] = std::cos(DegToRad(kHorizonZenith));
    run.cosZenith[kMaghrib] = run.cosZenith[kShurooq];
    run.cosZenith[kIsha] = std::cos(DegToRad(inputs.method.ishaAngle + 90.0));
    return run;
}

void TakePresentPlace(Run& run) {
    if (run.place != run.inputs.place) {
        run.place = run.inputs.place;
        run.eventPlace = EventPlaceOf(run.place);
    }
}

double SolveEvent(Run& run, std::int16_t day, Prayer prayer) {
    const double t = EventTimeByCosine(run.constants, run.eventPlace, day, run.cosZenith[prayer],
                                       run.guess[prayer]);
    run.guess[prayer] = t < 24.0 ? t : kFirstGuess[prayer];
    return t;
}

/// day: 1 for the first of January; 0 warms the guesses up on the last day of the year before.
PrayerRow SolveDay(Run& run, std::int16_t day) {
    TakePresentPlace(run);
    PrayerRow times{};
    double gap = 0.0;
    times[kZuhr] = SolarTransit(run.constants, run.eventPlace, day, gap);
    run.cosZenith[kAsr] = std::cos(std::atan(std::tan(gap) + run.inputs.method.asrRatio));
    for (const Prayer prayer : kTimedPrayers) {
        times[prayer] = SolveEvent(run, day, prayer);
    }
    return times;
}

void StoreRow(YearTimes& times, std::size_t row, const PrayerRow& day) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        times[prayer][row] = day[prayer];
    }
}

bool WithinLimits(const PrayerRow& times, const YearMethod& method, const Limits& limits) {
    return !(method.needsFajr && times[kFajr] < limits.earliestFajr) &&
           !(method.needsIsha && times[kIsha] > limits.latestIsha);
}

bool TwilightFitsDay(const PrayerRow& times, const YearMethod& method) {
    return !(method.needsFajr && times[kFajr] == NoEvent) &&
           !(method.needsIsha && times[kIsha] == NoEvent) &&
           WithinLimits(times, method, kDayLimits);
}

std::optional<YearFailure> CheckDay(const PrayerRow& times, const YearMethod& method,
                                    std::int16_t row) {
    if (!TwilightFitsDay(times, method)) {
        return YearFailure{'A', row};
    }
    if (method.needsFajr && !(times[kFajr] + kShortestDawn < times[kShurooq])) {
        return YearFailure{'B', row};
    }
    return std::nullopt;
}

std::optional<YearFailure> SolveRows(Run run, YearRows rows, const ProgressReport& report,
                                     YearTimes& times) {
    SolveDay(run, rows.first);
    const Date newYear = DateSerial(run.inputs.year, 1, 1);
    for (std::int16_t row = rows.first; row < rows.end; ++row) {
        EquationOfTime(newYear + row);  // worked out each day; no time depends on it
        if (report) {
            report(row * 100.0 / (rows.end - 1));
        }
        const PrayerRow day = SolveDay(run, AddInt16(row, 1));
        StoreRow(times, static_cast<std::size_t>(row), day);
        if (const auto failure = CheckDay(day, run.inputs.method, row)) {
            return failure;
        }
    }
    return std::nullopt;
}

void ShiftRows(YearTimes& times, std::int16_t first, std::int16_t last) {
    for (int row = first; row <= last; ++row) {
        if (row < 0 || row >= static_cast<int>(kYearRows)) {
            throw BoundsFault("a day of daylight saving lies outside the year");
        }
        for (auto& column : times) {
            column[static_cast<std::size_t>(row)] += 1.0;
        }
    }
}

void AddDaylightHour(YearTimes& times, const YearMethod& method, std::int16_t endDay) {
    const std::int16_t firstRow = SubtractInt16(method.dstStart, 1);
    const std::int16_t lastRow = SubtractInt16(method.dstEnd, 1);
    if (method.dstStart <= method.dstEnd) {
        ShiftRows(times, firstRow, lastRow);
    } else {  // a southern summer
        ShiftRows(times, 0, lastRow);
        ShiftRows(times, firstRow, SubtractInt16(endDay, 1));
    }
}

std::optional<YearFailure> CheckShiftedRows(const YearTimes& times, const YearMethod& method,
                                            YearRows rows) {
    for (std::int16_t row = rows.first; row < rows.end; ++row) {
        if (!WithinLimits(RowOf(times, static_cast<std::size_t>(row)), method, kShiftedLimits)) {
            return YearFailure{'C', row};
        }
    }
    return std::nullopt;
}

}  // namespace

PrayerRow RowOf(const YearTimes& times, std::size_t row) {
    PrayerRow day{};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day[prayer] = times[prayer][row];
    }
    return day;
}

bool HasDaylightHour(const YearMethod& method, std::size_t row) {
    if (method.dstEnabled != 1) {
        return false;
    }
    const int day = static_cast<int>(row) + 1;
    const bool started = day >= method.dstStart;
    const bool over = day > method.dstEnd;
    return method.dstStart <= method.dstEnd ? started && !over : started || !over;
}

YearMethod MethodOf(const SettingsRecord& settings, double ishaAngle) {
    return {settings.FajrAngle,  ishaAngle,         settings.AsrRatio,
            settings.DstEnabled, settings.DstStart, settings.DstEnd};
}

std::optional<YearFailure> FillYear(const YearConstants& constants, const YearInputs& inputs,
                                    YearRows rows, const ProgressReport& report, YearTimes& times) {
    if (const auto failure = SolveRows(StartRun(constants, inputs), rows, report, times)) {
        return failure;
    }
    if (inputs.method.dstEnabled == 1) {
        AddDaylightHour(times, inputs.method, rows.end);
    }
    // Runs with daylight saving off too.
    return CheckShiftedRows(times, inputs.method, rows);
}

YearTable CalculateYear(const YearInputs& inputs) {
    YearTable table;
    const YearRows rows = {0, AddInt16(365, LeapFlagOf(inputs.year))};
    table.failure = FillYear(ConstantsOf(inputs), inputs, rows, ProgressReport(), table.times);
    return table;
}

DayTimes CalculateDay(const YearInputs& inputs, std::int16_t row) {
    const YearMethod& method = inputs.method;
    const YearConstants constants = ConstantsOf(inputs);
    const std::int16_t day = AddInt16(row, 1);
    Run run = StartRun(constants, inputs);
    SolveDay(run, row);
    EquationOfTime(DateSerial(inputs.year, 1, 1) + row);
    DayTimes result;
    result.times = SolveDay(run, day);
    result.failure = CheckDay(result.times, method, row);
    if (result.failure) {
        return result;
    }
    if (method.dstEnabled == 1 && day > method.dstStart && day < method.dstEnd) {
        for (double& time : result.times) {
            time += 1.0;
        }
    }
    if (!WithinLimits(result.times, method, kDayLimits)) {
        result.failure = YearFailure{'C', row};
    }
    return result;
}

}  // namespace horavex
