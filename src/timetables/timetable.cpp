#include "timetables/timetable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "base/rounding.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moment_text.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/zone_spans.h"
#include "geo/qibla.h"
#include "store/around_options.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {

namespace {

DayClock ClockOf(Date date) {
    const std::vector<ZoneSpan>& zone = RuledYear.rules.moments.zone;
    if (!zone.empty()) {
        const ZoneSpan& span = SpanOfLocal(zone, date + 0.5);
        return {span.hours, span.daylight, DaylightChange::kNone};
    }
    const bool daylight = IsDaylightDay(date, ActiveSettings);
    return {ActiveSettings.TimeZone + (daylight ? 1.0 : 0.0), daylight, DaylightChange::kNone};
}

/// What is no time of any day, a damaged zone's, has no text either.
std::optional<Moment> IfExists(const Moment& moment) {
    return std::fabs(moment.hours) < NoEvent ? std::optional(moment) : std::nullopt;
}

TimetableDay TakeDay(std::size_t row, Date date, const DayClock& clock, const DayMoments& moments,
                     bool withTimesAround) {
    TimetableDay day = {clock, date, RuledHijriDate(date), {}, {}};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.moments[prayer] = IfExists(moments[prayer]);
    }
    if (withTimesAround) {
        std::ranges::transform(AroundOfRow(row), std::back_inserter(day.around), IfExists);
    }
    return day;
}

/// The turn of the year is no change.
void MarkChanges(std::vector<DayClock>& clocks) {
    for (std::size_t row = 1; row < clocks.size(); ++row) {
        if (!clocks[row - 1].daylight && clocks[row].daylight) {
            clocks[row].change = DaylightChange::kBegins;
        } else if (clocks[row - 1].daylight && !clocks[row].daylight &&
                   clocks[row - 1].change == DaylightChange::kNone) {
            clocks[row - 1].change = DaylightChange::kEnds;
        }
    }
}

/// Appends a number with zeros in front up to a width, which a sign is part of.
void AppendPadded(std::string& text, int value, int width) {
    char digits[16];
    char* const end = std::to_chars(digits, digits + sizeof digits, std::abs(value)).ptr;
    if (value < 0) {
        text += '-';
        --width;
    }
    for (auto written = end - digits; written < width; ++written) {
        text += '0';
    }
    text.append(digits, end);
}

std::string IsoDate(int year, int month, int day) {
    std::string text;
    AppendPadded(text, year, 4);
    text += '-';
    AppendPadded(text, month, 2);
    text += '-';
    AppendPadded(text, day, 2);
    return text;
}

}  // namespace

std::vector<std::optional<Moment>> TimetableDay::Columns() const {
    std::vector<std::optional<Moment>> columns(moments.begin(), moments.end());
    columns.insert(columns.end(), around.begin(), around.end());
    return columns;
}

std::vector<DayClock> TakeClocks(std::size_t days) {
    const Date newYear = DateSerial(CurrentYear, 1, 1);
    std::vector<DayClock> clocks;
    clocks.reserve(days);
    for (std::size_t row = 0; row < days; ++row) {
        clocks.push_back(ClockOf(newYear + static_cast<double>(row)));
    }
    MarkChanges(clocks);
    return clocks;
}

double StandardHours(std::span<const DayClock> clocks) {
    const auto standard = std::ranges::find(clocks, false, &DayClock::daylight);
    return standard == clocks.end() ? clocks.front().offset : standard->offset;
}

Timetable TakeTimetable() {
    const std::vector<DayMoments> moments = MomentsOfAllRows();
    const std::vector<DayClock> clocks = TakeClocks(moments.size());
    const YearRules& rules = RuledYear.rules;
    Timetable table = {.year = CurrentYear,
                       .place = ActiveCityText,
                       .latitude = StoredCoord(ActiveLocation.City.Latitude),
                       .longitude = StoredCoord(ActiveLocation.City.Longitude),
                       .timeZone = ActiveSettings.TimeZone,
                       .zone = rules.moments.zone,
                       .zoneName = rules.zoneName,
                       .method = rules.method,
                       .highLatitude = rules.moments.highLatitude,
                       .fajrAngle = ActiveSettings.FajrAngle,
                       .ishaAngle = ActiveIshaAngle,
                       .ishaInterval = rules.moments.ishaInterval,
                       .ishaIntervalRamadan = rules.moments.ishaIntervalRamadan,
                       .asrRatio = ActiveSettings.AsrRatio,
                       .qiblaDegrees = QiblaDegrees < 0.0 ? QiblaDegrees + 360.0 : QiblaDegrees,
                       .days = {}};
    const bool withTimesAround = ReadOption(option::kAroundTheDay) == 1;
    const Date newYear = DateSerial(CurrentYear, 1, 1);
    table.days.reserve(moments.size());
    for (std::size_t row = 0; row < moments.size(); ++row) {
        table.days.push_back(TakeDay(row, newYear + static_cast<double>(row), clocks[row],
                                     moments[row], withTimesAround));
    }
    if (!table.zone.empty()) {
        table.timeZone = StandardHours(clocks);
    }
    return table;
}

double OffsetOf(const Timetable& table, const TimetableDay& day, Date local) {
    return table.zone.empty() ? day.offset : SpanOfLocal(table.zone, local).hours;
}

std::vector<std::string> NotesOfDays(const Timetable& table, std::span<const TimetableDay> days) {
    std::vector<Moment> moments;
    const auto take = [&](const std::optional<Moment>& moment) {
        moments.push_back(moment.value_or(Moment{}));
    };
    for (const TimetableDay& day : days) {
        std::ranges::for_each(day.moments, take);
        std::ranges::for_each(day.around, take);
    }
    return ColumnNotes(moments, table.highLatitude);
}

std::span<const TimetableDay> DaysOfMonth(const Timetable& table, int month) {
    const auto rowOf = [&](int first) {
        return static_cast<std::size_t>(DateSerial(table.year, first, 1) -
                                        DateSerial(table.year, 1, 1));
    };
    return std::span(table.days).subspan(rowOf(month), rowOf(month + 1) - rowOf(month));
}

DayMinute MinuteOf(Date day, double hours) {
    const double minutes = std::floor(RoundHalfEven(hours * 3600.0) / 60.0);
    const double days = std::floor(minutes / 1440.0);
    return {day + days, static_cast<int>(minutes - days * 1440.0)};
}

std::string IsoDate(const CivilDate& date) {
    return IsoDate(date.year, date.month, date.day);
}

std::string IsoDate(const HijriDate& date) {
    return IsoDate(date.year, date.month, date.day);
}

std::string IsoMoment(Date day, double hours, double offset) {
    const double seconds = RoundHalfEven(hours * 3600.0);
    const double days = std::floor(seconds / kSecondsPerDay);
    const int second = NearestInt(seconds - days * kSecondsPerDay);
    const int zone = std::abs(NearestInt(offset * 60.0));
    std::string text = IsoDate(CivilFromDate(day + days));
    const auto append = [&text](char mark, int value) {
        text += mark;
        AppendPadded(text, value, 2);
    };
    append('T', second / 3600);
    append(':', second / 60 % 60);
    append(':', second % 60);
    append(offset < 0.0 ? '-' : '+', zone / 60);
    append(':', zone % 60);
    return text;
}

std::string IsoTime(int minuteOfDay) {
    std::string text;
    AppendPadded(text, minuteOfDay / 60, 2);
    text += ':';
    AppendPadded(text, minuteOfDay % 60, 2);
    return text;
}

std::string PlainNumber(double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    return std::string(text, end);
}

}  // namespace horavex
