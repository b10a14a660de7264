#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "base/prayers.h"
#include "engine/place.h"
#include "engine/sun.h"

namespace horavex {

// The year's table as a function of its inputs: nothing here reads or writes the program's state,
// shows a message or keeps anything between calls. Runs may interleave as they like.

struct SettingsRecord;

inline constexpr std::size_t kYearRows = 366;

/// The six times of one day, hours of the local clock.
using PrayerRow = std::array<double, kPrayerCount>;

/// [prayer][row]: hours of the local clock for each day of a year, row 0 being the first of
/// January; NoEvent where the sun does not reach the zenith distance. Not rounded; not wrapped
/// after the daylight hour.
using YearTimes = std::array<std::array<double, kYearRows>, kPrayerCount>;

/// The row of a table, 0 to 365.
PrayerRow RowOf(const YearTimes& times, std::size_t row);

/// How the times follow from the sun.
struct YearMethod {
    double fajrAngle = 0.0;       // degrees of depression
    double ishaAngle = 0.0;       // degrees of depression
    double asrRatio = 0.0;        // shadow factor, 1 or 2
    std::int16_t dstEnabled = 0;  // 1 when daylight saving applies
    std::int16_t dstStart = 0;    // first day of daylight saving, 1-based day of the year
    std::int16_t dstEnd = 0;      // last day of the same
    bool needsFajr = true;        // the year gives up where Fajr does not fit its day
    bool needsIsha = true;        // likewise

    bool operator==(const YearMethod&) const = default;
};

/// True for a row whose times carry the daylight hour. row: 0 to 365.
bool HasDaylightHour(const YearMethod& method, std::size_t row);

/// The method of a settings record and of the angle that stands beside it.
YearMethod MethodOf(const SettingsRecord& settings, double ishaAngle);

/// Everything that a year's table depends on.
struct YearInputs {
    std::int16_t year = 0;  // Gregorian, 1 to 9999
    YearPlace place;
    YearMethod method;
    YearStart start = YearStart::kRounded;
};

/// What the series needs of the year.
inline YearConstants ConstantsOf(const YearInputs& inputs) {
    return YearConstantsOf(inputs.year, inputs.start);
}

/// Why a calculation gave up, and on which row.
struct YearFailure {
    char message;  // 'A' twilight outside the day, 'B' dawn too short, 'C' after daylight saving
    std::int16_t row;

    bool operator==(const YearFailure&) const = default;
};

/// A year's times; after a failure with 'A' or 'B' the rows behind the failing one are zeros.
struct YearTable {
    YearTimes times{};
    std::optional<YearFailure> failure;
};

/// Works a year out. Throws BoundsFault when dstStart or dstEnd is no day of the table.
YearTable CalculateYear(const YearInputs& inputs);

/// The rows first to end - 1, 0-based.
struct YearRows {
    std::int16_t first;
    std::int16_t end;
};

/// Called with 0 to 100 once a day of the run; it may yield to the event loop.
using ProgressReport = std::function<void(double percent)>;

/// The steps of CalculateYear over a table and inputs in the caller's hands, which a report may
/// change: each day is worked out from what they are then, and the daylight hour and the limits
/// behind it come over the table as it stands. Rows that are not reached stay as they were.
std::optional<YearFailure> FillYear(const YearConstants& constants, const YearInputs& inputs,
                                    YearRows rows, const ProgressReport& report, YearTimes& times);

/// One day alone, and whether it breaks a limit.
struct DayTimes {
    PrayerRow times{};
    std::optional<YearFailure> failure;
};

/// The day of a row by the year's steps, for a preview. It adds the daylight hour only strictly
/// between dstStart and dstEnd, without the southern case, and repeats the narrow limits after it.
/// The times of a broken limit are those reached so far.
DayTimes CalculateDay(const YearInputs& inputs, std::int16_t row);

}  // namespace horavex
