#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/date.h"
#include "engine/day_view.h"
#include "engine/year_rules.h"

namespace horavex {

/// Today's six times as fractions of a day. Written by ShowDay, and by the day browser, which
/// the next tick repairs.
extern std::array<double, kPrayerCount> TodayTimes;

/// Index of the prayer that comes next, 6 for none left; -1 is not yet set. ShowDay fills it
/// while it is -1; the clock counts it on.
extern std::int16_t NextPrayer;

/// The day as ShowDay has last shown it. Written by ShowDay alone.
extern DayView ShownDay;

/// Day of the last ShowDay, and of the last refresh after a longer gap.
extern Date TodayDate;
extern Date LastRefreshDate;

/// What the driver of the day needs of the rooms above the engine.
class DayHost {
public:
    virtual ~DayHost() = default;

    /// Shows how far the year's calculation is, 0 to 100 percent, and yields to the event loop.
    virtual void ReportProgress(double percent) = 0;

    /// Works out the qibla of the place that the engine has just taken over.
    virtual void ComputeQibla() = 0;

    /// Direction of Mecca as last worked out, degrees from north, positive to the east.
    virtual double QiblaBearing() = 0;

    /// What the options ask of a year; nothing by default.
    virtual YearRules RulesOf(std::int16_t /*year*/) { return {}; }

    /// The set action that the clock runs by itself: a set of the accepted values.
    virtual void RunSetAction() = 0;

    /// Hands the day's values to the face.
    virtual void SetFlashVariables() = 0;
};

/// Installs the host; nullptr takes it away. The host outlives its installation.
void InstallDayHost(DayHost* host);

/// Works the whole year's table out for CurrentYear and the working location, and with it the
/// qibla unless the calculation gave up (CalcFailed). Needs an installed host.
void RecalculateYear();

/// Recalculates the present year behind the progress window, which stays up for three seconds at
/// least, and shows the day, also after a calculation that gave up; behind it the accepted year is
/// back. Needs an installed host.
void RefreshAll();

/// The day of a moment by the calculated year; none for a day outside the table. Needs an
/// installed host.
std::optional<DayView> TakeDayView(Date now);

/// Takes today as a value, puts it into the labels of frmMain and hands it to the face. Does not
/// look at CalcFailed. A day more than one away from LastRefreshDate runs the set action first.
/// Shows nothing of a day outside the table, which a wait that crosses the year's end comes to.
void ShowDay();

}  // namespace horavex
