#pragma once

#include <cstdint>
#include <optional>

#include "base/date.h"
#include "engine/moment_rules.h"
#include "engine/year_calculation.h"

namespace horavex {

/// Times[prayer][row] for each day of CurrentYear. Written by ComputeYearTimes and
/// BringYearBack.
extern YearTimes Times;

/// The row as the table holds it. row: 0 to 365.
PrayerRow TimesOfRow(std::size_t row);

/// 0, or -1 when a calculation gave up. The driver clears it before each one.
extern std::int16_t CalcFailed;

/// Why the last calculation gave up, for tools that cannot read a message box.
extern std::optional<YearFailure> LastYearFailure;

/// CurrentYear at the program's place by the working settings, and by the rules of RuledYear.
YearInputs PresentInputs();

/// Fills the rows firstDay to endDay - 1 (0-based) by the year constants and the present inputs,
/// which each day reads anew, then adds the daylight hour. At the first day that breaks a limit it
/// shows the message, sets CalcFailed to -1 and returns; that row is filled, later rows keep what
/// the run before left. Throws BoundsFault when DstStart or DstEnd is no day of the table.
void ComputeYearTimes(std::int16_t firstDay, std::int16_t endDay, const ProgressReport& report);

/// True for a day whose times of the table carry the daylight hour under the given settings.
bool IsDaylightDay(Date date, const SettingsRecord& settings);

/// The same under the working settings.
bool IsDaylightDay(Date date);

/// The wizard's preview: the six times of one day alone as CalculateDay has them, without touching
/// the table. On a broken limit it shows the message and sets CalcFailed to -1.
PrayerRow ComputeTodayTimes(const YearInputs& inputs, Date today);

}  // namespace horavex
