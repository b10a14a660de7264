#include "engine/night_rules.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/int16.h"
#include "engine/angle.h"
#include "engine/current_year.h"

namespace horavex {

namespace {

constexpr double kDegreesPerNight = 60.0;  // the rule of the angle gives each a sixtieth

std::size_t RowCount(const YearSource& year) {
    return 365U + static_cast<std::size_t>(LeapFlagOf(year.inputs.year));
}

/// The table's row without its daylight hour.
PrayerRow StandardRow(const YearSource& year, std::size_t row) {
    PrayerRow hours = RowOf(year.times, row);
    if (HasDaylightHour(year.inputs.method, row)) {
        for (double& hour : hours) {
            hour -= 1.0;
        }
    }
    return hours;
}

/// What the nearest day of the year has that has something: the last one before the row, or else
/// the first one behind it. have takes a row to an optional.
template <class Have>
auto FindNearest(const YearSource& year, std::size_t row, Have have) -> decltype(have(row)) {
    for (std::size_t before = row; before-- > 0;) {
        if (auto found = have(before)) {
            return found;
        }
    }
    for (std::size_t behind = row + 1; behind < RowCount(year); ++behind) {
        if (auto found = have(behind)) {
            return found;
        }
    }
    return {};
}

std::int16_t DayOfYear(std::size_t row) {
    return ToInt16(static_cast<std::int64_t>(row) + 1);
}

/// Where the shadow has its length beyond that of noon.
double AsrZenith(const YearSource& year, std::size_t row) {
    double gap = 0.0;
    SolarTransit(YearConstantsOf(year.inputs.year), year.inputs.place, DayOfYear(row), gap);
    return std::atan(std::tan(gap) + year.inputs.method.asrRatio);
}

/// Radians.
double ZenithOf(const YearSource& year, std::size_t row, Prayer prayer) {
    switch (prayer) {
        case kFajr:
            return DegToRad(90.0 + year.inputs.method.fajrAngle);
        case kIsha:
            return DegToRad(90.0 + year.inputs.method.ishaAngle);
        case kAsr:
            return AsrZenith(year, row);
        default:
            return DegToRad(kHorizonZenith);
    }
}

DayHalf HalfOf(Prayer prayer) {
    return prayer == kFajr || prayer == kShurooq ? DayHalf::kMorning : DayHalf::kEvening;
}

double Beside(const YearSource& year, std::size_t row, double zenith, DayHalf half) {
    const double transit = StandardRow(year, row)[kZuhr];
    return EventBeside(YearConstantsOf(year.inputs.year), year.inputs.place, DayOfYear(row), zenith,
                       transit, half);
}

/// An event of the sun: the table's own number where it is one. The table folds what passes
/// midnight back onto its day and may then go on in the other half of the night, or miss an event
/// whose sun of yesterday's hour does not get there; what differs is worked out anew. Without a
/// rule such a year has given up before.
double EventOf(const YearSource& year, std::size_t row, Prayer prayer) {
    constexpr double kSame = 0.1;  // hours; the table takes the sun of yesterday's answer
    const double told = StandardRow(year, row)[prayer];
    if (year.rules.highLatitude == HighLatitudeRule::kNone) {
        return IsEvent(told) ? told : NoEvent;
    }
    const double own = Beside(year, row, ZenithOf(year, row, prayer), HalfOf(prayer));
    return std::fabs(told - own) < kSame ? told : own;
}

/// A day that has Shurooq, Asr and Maghrib. On the first and last days of a polar night the sun's
/// limb rises by refraction alone, and there is no shadow for Asr.
std::optional<PrayerRow> WholeDay(const YearSource& year, std::size_t row) {
    PrayerRow hours = StandardRow(year, row);
    for (const Prayer prayer : {kShurooq, kAsr, kMaghrib}) {
        hours[prayer] = EventOf(year, row, prayer);
    }
    const bool isWhole =
        IsEvent(hours[kShurooq]) && IsEvent(hours[kAsr]) && IsEvent(hours[kMaghrib]);
    return isWhole ? std::optional(hours) : std::nullopt;
}

/// The night before a day's sunrise, or the one after its sunset.
double NightLength(const YearSource& year, std::size_t row, DayHalf half) {
    const bool isBefore = half == DayHalf::kMorning;
    const std::size_t evening = isBefore && row > 0 ? row - 1 : row;
    const std::size_t morning = isBefore ? row : std::min(row + 1, RowCount(year) - 1);
    return SunOfDay(year, morning).hours[kShurooq] + 24.0 - SunOfDay(year, evening).hours[kMaghrib];
}

double PortionOfNight(HighLatitudeRule rule, double angle) {
    switch (rule) {
        case HighLatitudeRule::kMiddle:
            return 0.5;
        case HighLatitudeRule::kSeventh:
            return 1.0 / 7.0;
        default:
            return angle / kDegreesPerNight;
    }
}

/// The hour that a rule of portions allows at the earliest for Fajr, at the latest for Isha.
double LimitOf(const YearSource& year, std::size_t row, Prayer prayer) {
    const DayHalf half = HalfOf(prayer);
    const YearMethod& method = year.inputs.method;
    const double angle = prayer == kFajr ? method.fajrAngle : method.ishaAngle;
    const double part =
        PortionOfNight(year.rules.highLatitude, angle) * NightLength(year, row, half);
    const PrayerRow hours = SunOfDay(year, row).hours;
    return prayer == kFajr ? hours[kShurooq] - part : hours[kMaghrib] + part;
}

Moment ByPortion(const YearSource& year, std::size_t row, Prayer prayer) {
    const double own = EventOf(year, row, prayer);
    const double limit = LimitOf(year, row, prayer);
    const bool keeps = IsEvent(own) && (prayer == kFajr ? own >= limit : own <= limit);
    return keeps || !IsEvent(limit) ? Moment{own} : Moment{limit, MomentBy::kRule};
}

Moment ByNearestDay(const YearSource& year, std::size_t row, Prayer prayer) {
    const auto have = [&](std::size_t other) {
        const double hours = EventOf(year, other, prayer);
        return IsEvent(hours) ? std::optional(hours) : std::nullopt;
    };
    if (const auto own = have(row)) {
        return {*own};
    }
    return {FindNearest(year, row, have).value_or(NoEvent), MomentBy::kRule};
}

Moment TwilightMoment(const YearSource& year, std::size_t row, Prayer prayer) {
    switch (year.rules.highLatitude) {
        case HighLatitudeRule::kNone:
            return {EventOf(year, row, prayer)};
        case HighLatitudeRule::kNearest:
            return ByNearestDay(year, row, prayer);
        default:
            return ByPortion(year, row, prayer);
    }
}

}  // namespace

SunDay SunOfDay(const YearSource& year, std::size_t row) {
    if (const auto own = WholeDay(year, row)) {
        return {*own};
    }
    const PrayerRow hours = StandardRow(year, row);
    if (year.rules.highLatitude == HighLatitudeRule::kNone) {
        return {hours};
    }
    const auto nearest =
        FindNearest(year, row, [&](std::size_t other) { return WholeDay(year, other); });
    if (!nearest) {
        return {hours};
    }
    SunDay day = {*nearest, true};
    for (double& hour : day.hours) {
        hour += hours[kZuhr] - (*nearest)[kZuhr];
    }
    return day;
}

double TwilightOf(const YearSource& year, std::size_t row, double angle, DayHalf half) {
    return Beside(year, row, DegToRad(90.0 + angle), half);
}

double MiddleOfNight(const YearSource& year, std::size_t row) {
    return SunOfDay(year, row).hours[kMaghrib] + NightLength(year, row, DayHalf::kEvening) / 2.0;
}

Moment FajrOf(const YearSource& year, std::size_t row) {
    return TwilightMoment(year, row, kFajr);
}

Moment IshaOf(const YearSource& year, std::size_t row) {
    return TwilightMoment(year, row, kIsha);
}

}  // namespace horavex
