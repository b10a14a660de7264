#include "engine/day_driver.h"

#include <cmath>
#include <optional>
#include <utility>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/accepted_year.h"
#include "engine/current_year.h"
#include "engine/day_view.h"
#include "engine/day_window.h"
#include "engine/limit_message.h"
#include "engine/moments.h"
#include "engine/place.h"
#include "engine/progress_window.h"
#include "engine/ruled_year.h"
#include "engine/sun.h"
#include "engine/table_row.h"
#include "engine/wait.h"
#include "engine/year_table.h"
#include "engine/zone_spans.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

std::array<double, kPrayerCount> TodayTimes{};
std::int16_t NextPrayer = 0;
DayView ShownDay;
Date TodayDate = 0.0;
Date LastRefreshDate = 0.0;

namespace {

constexpr double kShortestProgress = 3.0 / kSecondsPerDay;  // days

DayHost* host = nullptr;

const ProgramStateReset reset([] {
    TodayTimes = {};
    NextPrayer = 0;
    ShownDay = {};
    TodayDate = 0.0;
    LastRefreshDate = 0.0;
    host = nullptr;
});

std::string Text(TextEntry entry) {
    return TextItem(entry, ActiveSettings.Language);
}

/// The times cannot be calculated with these settings, whatever the fault; where even that cannot
/// be said, the fault's own line says what is wrong.
void TellFault(const Fault& fault) {
    try {
        ShowLimitMessage('C');
    } catch (const Fault&) {
        Ports().dialogs.ShowMessage(fault.what(), "", MessageIcon::kNone);
    }
}

/// A fault on the way is a calculation that gave up, and is told like one.
void CalculateBehindProgress() {
    try {
        WithMemoryFaults([] {
            ShowProgressWindow(
                Text(TextEntry::kCalculatingYear) + " " + std::to_string(CurrentYear),
                Text(TextEntry::kPleaseWait));
            RecalculateYear();
        });
    } catch (const Fault& fault) {
        CalcFailed = -1;
        TellFault(fault);
    }
}

void ShowAcceptedYear() {
    if (BringYearBack()) {
        ShowDay();
    }
}

/// A gap of exactly one day is the turn of the date and refreshes nothing.
void RefreshAfterGap() {
    const Date today = Ports().clock.Today();
    if (std::fabs(today - LastRefreshDate) > 1.0) {
        LastRefreshDate = today;
        host->RunSetAction();
    }
}

void TakeTimes(const DayMoments& moments) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        TodayTimes[prayer] = moments[prayer].hours / 24.0;
    }
}

void TakeNextPrayer(const NextMoment& next) {
    if (NextPrayer == -1) {
        NextPrayer = next.isTomorrows ? kNoPrayerLeft : next.prayer;
    }
}

/// Hours that the city's clock is ahead of Greenwich, where a zone's clock counts.
double OffsetNow(Date now) {
    const std::vector<ZoneSpan>& zone = RuledYear.rules.moments.zone;
    return zone.empty() ? 0.0 : SpanOfLocal(zone, now).hours;
}

}  // namespace

void InstallDayHost(DayHost* newHost) {
    host = newHost;
}

void RecalculateYear() {
    // What the options ask for may have to tell of a damaged file, and a tick comes in meanwhile.
    YearRules rules = host->RulesOf(CurrentYear);
    // The first three need nothing of each other, and no event comes in before the first report of
    // the table: their own order shows nowhere, that they all stand before the table does.
    TakePlace(Location.City, CityText);
    LeapYearFlag();
    ComputeYearConstants(CurrentYear, rules.moments.start);
    RuledYear.rules = std::move(rules);
    RuledYear.inputs = PresentInputs();  // a tick comes in with the first report
    ComputeYearTimes(0, AddInt16(365, LeapFlag),
                     [](double percent) { host->ReportProgress(percent); });
    RuledYear.inputs = PresentInputs();
    if (CalcFailed == 0) {
        host->ComputeQibla();
    }
}

void RefreshAll() {
    CalcFailed = 0;
    const double start = Ports().clock.SteadySeconds();
    CurrentYear = ToInt16(CivilFromDate(Ports().clock.Now()).year);
    {
        const ProgressWindowCloser closer;
        CalculateBehindProgress();
        if (CalcFailed == 0) {
            KeepYear();
        }
        ShowDay();
        WaitSeconds(kShortestProgress - (Ports().clock.SteadySeconds() - start) / kSecondsPerDay);
    }
    if (CalcFailed == 0) {
        EnableSettingsWindow();
    } else {
        ShowAcceptedYear();
    }
}

std::optional<DayView> TakeDayView(Date now) {
    const auto row = RowOf(std::floor(now));
    if (!row) {
        return std::nullopt;
    }
    return MakeDayView(
        {YearCityText, MomentsOfRow(*row), MomentsOfRow(RowAfter(*row)),
         MomentsOfRow(RowBefore(*row)), RuledHijriDate(now), host->QiblaBearing(), OffsetNow(now)},
        now);
}

void ShowDay() {
    RefreshAfterGap();
    const std::optional<DayView> day = TakeDayView(Ports().clock.Now());
    TodayDate = Ports().clock.Today();
    if (!day) {
        return;  // the next tick calculates the new year
    }
    ShownDay = *day;
    TakeTimes(ShownDay.moments);
    TakeNextPrayer(ShownDay.next);
    ShowDayInLabels(ShownDay);
    host->SetFlashVariables();
}

}  // namespace horavex
