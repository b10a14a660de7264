#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "base/date.h"

namespace horavex {

struct SettingsRecord;

/// Prayer indexes, the columns of the table.
enum Prayer : std::size_t { kFajr, kShurooq, kZuhr, kAsr, kMaghrib, kIsha };
inline constexpr std::size_t kPrayerCount = 6;
inline constexpr std::size_t kYearRows = 366;

/// The six times of one day, hours of the local clock.
using PrayerRow = std::array<double, kPrayerCount>;

/// Times[prayer][row]: hours of the local clock for each day of CurrentYear, row 0 being the
/// first of January; NoEvent where the sun does not reach the zenith distance. Not rounded; not
/// wrapped after the daylight hour. Written by ComputeYearTimes and BringYearBack.
extern std::array<std::array<double, kYearRows>, kPrayerCount> Times;

/// The row as the table holds it. row: 0 to 365.
PrayerRow TimesOfRow(std::size_t row);

/// 0, or -1 when a calculation gave up. The driver clears it before each one.
extern std::int16_t CalcFailed;

/// Why the last calculation gave up, for tools that cannot read a message box.
struct YearFailure {
    char message;  // 'A' twilight outside the day, 'B' dawn too short, 'C' after daylight saving
    std::int16_t row;
};
extern std::optional<YearFailure> LastYearFailure;

/// Called with 0 to 100 once a day of the run; it may yield to the event loop.
using ProgressReport = std::function<void(double percent)>;

/// Fills the rows firstDay to endDay - 1 (0-based) from the working settings, the place and the
/// year constants, then adds the daylight hour. At the first day that breaks a limit it shows
/// the message, sets CalcFailed to -1 and returns; that row is filled, later rows keep what the
/// run before left. Throws BoundsFault when DstStart or DstEnd is no day of the table.
void ComputeYearTimes(std::int16_t firstDay, std::int16_t endDay, const ProgressReport& report);

/// True for a day whose times of the table carry the daylight hour under the given settings.
bool IsDaylightDay(Date date, const SettingsRecord& settings);

/// The same under the working settings.
bool IsDaylightDay(Date date);

/// The wizard's preview: the six times of one day alone, without touching the table. Shares the
/// year's steps, but adds the daylight hour only strictly between DstStart and DstEnd, without
/// the southern case, and repeats the narrow limits after it. On a broken limit it shows the
/// message and sets CalcFailed to -1; the times reached so far are returned.
PrayerRow ComputeTodayTimes(Date today);

}  // namespace horavex
