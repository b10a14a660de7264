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

/// What the last day before the row has that has something. The end of the year stands for that of
/// the year before it. have takes a row to an optional.
template <class Have>
auto FindLast(const YearSource& year, std::size_t row, Have have) -> decltype(have(row)) {
    const std::size_t rows = RowCount(year);
    for (std::size_t back = 1; back < rows; ++back) {
        if (auto found = have((row + rows - back) % rows)) {
            return found;
        }
    }
    return {};
}

std::int16_t DayOfYear(std::size_t row) {
    return ToInt16(static_cast<std::int64_t>(row) + 1);
}

YearSun SunOf(const YearSource& year) {
    return year.shared == nullptr ? YearSun(year.inputs) : year.shared->sun;
}

/// Where the shadow has its length beyond that of noon.
double AsrZenith(const YearSource& year, std::size_t row, const YearSun& sun) {
    double gap = 0.0;
    SolarTransit(sun.constants, sun.place, DayOfYear(row), gap);
    return std::atan(std::tan(gap) + year.inputs.method.asrRatio);
}

/// Radians.
double ZenithOf(const YearSource& year, std::size_t row, Prayer prayer, const YearSun& sun) {
    switch (prayer) {
        case kFajr:
            return DegToRad(90.0 + year.inputs.method.fajrAngle);
        case kIsha:
            return DegToRad(90.0 + year.inputs.method.ishaAngle);
        case kAsr:
            return AsrZenith(year, row, sun);
        default:
            return DegToRad(kHorizonZenith);
    }
}

DayHalf HalfOf(Prayer prayer) {
    return prayer == kFajr || prayer == kShurooq ? DayHalf::kMorning : DayHalf::kEvening;
}

/// An event of the sun: the table's own number where it is one. The table folds what passes
/// midnight back onto its day and may then go on in the other half of the night, take an Asr before
/// 12 o'clock for one before noon, or miss an event whose sun of yesterday's hour does not get
/// there; what differs is worked out anew. Without a rule such a year has given up before.
double EventOf(const YearSource& year, std::size_t row, Prayer prayer) {
    constexpr double kSame = 0.1;  // hours; the table takes the sun of yesterday's answer
    const PrayerRow hours = StandardRow(year, row);
    const double told = hours[prayer];
    if (year.rules.highLatitude == HighLatitudeRule::kNone) {
        return IsEvent(told) ? told : NoEvent;
    }
    const DayHalf half = HalfOf(prayer);
    const YearSun sun = SunOf(year);
    const double cosZenith = std::cos(ZenithOf(year, row, prayer, sun));
    const double transit = hours[kZuhr];
    const bool isOnItsSide = (told > transit) == (half == DayHalf::kEvening);
    if (isOnItsSide && IsNearEventBeside(sun.constants, sun.place, DayOfYear(row), cosZenith,
                                         transit, half, told)) {
        return told;  // as most are
    }
    const double own =
        EventBeside(sun.constants, sun.place, DayOfYear(row), cosZenith, transit, half);
    return isOnItsSide && std::fabs(told - own) < kSame ? told : own;
}

/// A day that has Shurooq, Asr and Maghrib. On the first and last days of a polar night the sun's
/// limb rises by refraction alone, and there is no shadow for Asr.
std::optional<PrayerRow> FindWholeDay(const YearSource& year, std::size_t row) {
    PrayerRow hours = StandardRow(year, row);
    for (const Prayer prayer : {kShurooq, kAsr, kMaghrib}) {
        hours[prayer] = EventOf(year, row, prayer);
        if (!IsEvent(hours[prayer])) {
            return std::nullopt;
        }
    }
    return hours;
}

/// The same, looked for once where the days are kept.
std::optional<PrayerRow> WholeDay(const YearSource& year, std::size_t row) {
    if (year.shared == nullptr) {
        return FindWholeDay(year, row);
    }
    auto& kept = year.shared->wholeDays[row];
    if (!kept) {
        kept = FindWholeDay(year, row);
    }
    return *kept;
}

/// The night before a day's sunrise, or the one after its sunset; NoEvent in a year without days.
double NightLength(const YearSource& year, std::size_t row, DayHalf half) {
    const bool isBefore = half == DayHalf::kMorning;
    const std::size_t evening = isBefore && row > 0 ? row - 1 : row;
    const std::size_t morning = isBefore ? row : std::min(row + 1, RowCount(year) - 1);
    const double sunrise = SunOfDay(year, morning).hours[kShurooq];
    const double sunset = SunOfDay(year, evening).hours[kMaghrib];
    return IsEvent(sunrise) && IsEvent(sunset) ? sunrise + 24.0 - sunset : NoEvent;
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

/// A moment at which the sun stands at an angle of depression.
struct Twilight {
    DayHalf half;
    double angle;        // degrees
    double share = 1.0;  // of the rule's portion of the night
};

/// The hour that a rule of portions allows at the earliest for Fajr, at the latest for the others.
double LimitOf(const YearSource& year, std::size_t row, const Twilight& twilight) {
    const double night = NightLength(year, row, twilight.half);
    if (!IsEvent(night)) {
        return NoEvent;
    }
    const double part =
        twilight.share * PortionOfNight(year.rules.highLatitude, twilight.angle) * night;
    const PrayerRow hours = SunOfDay(year, row).hours;
    return twilight.half == DayHalf::kMorning ? hours[kShurooq] - part : hours[kMaghrib] + part;
}

Moment ByPortion(const YearSource& year, std::size_t row, const Twilight& twilight, double own) {
    const double limit = LimitOf(year, row, twilight);
    const bool isMorning = twilight.half == DayHalf::kMorning;
    const bool keeps = IsEvent(own) && (isMorning ? own >= limit : own <= limit);
    return keeps || !IsEvent(limit) ? Moment{own} : Moment{limit, MomentBy::kRule};
}

/// eventOf takes a row to the hour of the twilight or NoEvent.
template <class EventOfRow>
Moment TwilightMoment(const YearSource& year, std::size_t row, const Twilight& twilight,
                      EventOfRow eventOf) {
    const double own = eventOf(row);
    if (year.rules.highLatitude == HighLatitudeRule::kNone) {
        return {own};
    }
    if (year.rules.highLatitude != HighLatitudeRule::kNearest) {
        return ByPortion(year, row, twilight, own);
    }
    if (IsEvent(own)) {
        return {own};
    }
    const auto last = FindLast(year, row, [&](std::size_t other) {
        const double hours = eventOf(other);
        return IsEvent(hours) ? std::optional(hours) : std::nullopt;
    });
    return {last.value_or(NoEvent), MomentBy::kRule};
}

Moment TwilightOfPrayer(const YearSource& year, std::size_t row, Prayer prayer, double angle) {
    return TwilightMoment(year, row, {HalfOf(prayer), angle},
                          [&](std::size_t other) { return EventOf(year, other, prayer); });
}

/// Only the rule of the angle gives a smaller angle a smaller portion.
double ShareOfMaghrib(const YearSource& year) {
    const double share = year.rules.maghribAngle / year.inputs.method.ishaAngle;
    const bool isOwn = year.rules.highLatitude == HighLatitudeRule::kAngle;
    return isOwn || share < 0.0 || share > 1.0 ? 1.0 : share;
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
        FindLast(year, row, [&](std::size_t other) { return WholeDay(year, other); });
    if (!nearest) {
        return {hours};
    }
    SunDay day = {*nearest, true};
    for (double& hour : day.hours) {
        hour += hours[kZuhr] - (*nearest)[kZuhr];
    }
    return day;
}

double MiddleOfNight(const YearSource& year, std::size_t row) {
    const double night = NightLength(year, row, DayHalf::kEvening);
    return IsEvent(night) ? SunOfDay(year, row).hours[kMaghrib] + night / 2.0 : NoEvent;
}

Moment FajrOf(const YearSource& year, std::size_t row) {
    return TwilightOfPrayer(year, row, kFajr, year.inputs.method.fajrAngle);
}

Moment IshaOf(const YearSource& year, std::size_t row) {
    return TwilightOfPrayer(year, row, kIsha, year.inputs.method.ishaAngle);
}

Moment MaghribByAngle(const YearSource& year, std::size_t row) {
    const double angle = year.rules.maghribAngle;
    const double cosZenith = std::cos(DegToRad(90.0 + angle));
    const YearSun sun = SunOf(year);
    return TwilightMoment(
        year, row, {DayHalf::kEvening, angle, ShareOfMaghrib(year)}, [&](std::size_t other) {
            return EventBeside(sun.constants, sun.place, DayOfYear(other), cosZenith,
                               StandardRow(year, other)[kZuhr], DayHalf::kEvening);
        });
}

}  // namespace horavex
