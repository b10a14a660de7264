#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "engine/day_view.h"
#include "engine/moments.h"
#include "engine/solar_event.h"
#include "engine/zone_spans.h"
#include "lib/answers.h"
#include "lib/unix_time.h"
#include "lib/year.h"

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;

DayMoments MomentsOfRow(const horavex_year& year, std::size_t row) {
    return MomentsOf({year.basis.inputs, year.times, year.basis.rules.moments}, row);
}

/// Hours that the clock without a zone of the database is ahead of Greenwich on a day.
double RecordOffset(const horavex_year& year, std::size_t row) {
    const YearInputs& inputs = year.basis.inputs;
    return inputs.place.timeZone + (HasDaylightHour(inputs.method, row) ? 1.0 : 0.0);
}

horavex_moment ToldMoment(const horavex_year& year, std::size_t row, const Moment& moment) {
    if (!IsEvent(moment.hours)) {
        return {0.0, 0, 0, HORAVEX_BY_NOTHING};
    }
    const bool isZoned = !year.basis.rules.moments.zone.empty();
    const int offset =
        NearestInt((isZoned ? moment.offset : RecordOffset(year, row)) * kSecondsPerHour);
    const auto second = static_cast<std::int64_t>(RoundHalfEven(moment.hours * kSecondsPerHour));
    const std::int64_t midnight = UnixOfUniversal(NewYear(year) + static_cast<double>(row));
    return {moment.hours, midnight + second - offset, offset,
            static_cast<std::int32_t>(moment.by) + HORAVEX_BY_SUN};
}

horavex_date ToldHijri(const horavex_year& year, std::size_t row) {
    const std::vector<HijriDate>& days = year.basis.rules.hijri;
    const HijriDate hijri =
        row < days.size() ? days[row] : HijriFromDate(NewYear(year) + static_cast<double>(row));
    return {hijri.year, hijri.month, hijri.day};
}

horavex_day ToldDay(const horavex_year& year, std::size_t row) {
    const CivilDate date = CivilFromDate(NewYear(year) + static_cast<double>(row));
    horavex_day day = HORAVEX_DAY_INIT;
    day.day_of_year = static_cast<std::int32_t>(row) + 1;
    day.date = {date.year, date.month, date.day};
    day.hijri = ToldHijri(year, row);
    std::ranges::transform(MomentsOfRow(year, row), day.moments,
                           [&](const Moment& moment) { return ToldMoment(year, row, moment); });
    return day;
}

/// A moment of a year by its own clock.
struct LocalMoment {
    Date now;
    double offset;  // hours ahead of Greenwich
    std::size_t row;
};

/// Days of daylight saving by hand begin and end at their midnight of standard time.
double OffsetAt(const horavex_year& year, Date universal) {
    const std::vector<ZoneSpan>& zone = year.basis.rules.moments.zone;
    if (!zone.empty()) {
        return SpanAt(zone, universal).hours;
    }
    const Date standard = universal + year.basis.inputs.place.timeZone / 24.0;
    const double row = std::floor(standard) - NewYear(year);
    return RecordOffset(year, static_cast<std::size_t>(std::clamp(row, 0.0, 365.0)));
}

LocalMoment LocalOf(const horavex_year& year, std::int64_t seconds) {
    const Date universal = UniversalOfUnix(seconds);
    const double offset = OffsetAt(year, universal);
    const Date now = universal + offset / 24.0;
    const double row = std::floor(now) - NewYear(year);
    RequireRange("the day of unix_time", row + 1.0, 1.0, static_cast<double>(LastRow(year)) + 1.0);
    return {now, offset, static_cast<std::size_t>(row)};
}

NextMoment NextAt(const horavex_year& year, const LocalMoment& local) {
    DaySource source;
    source.today = MomentsOfRow(year, local.row);
    source.tomorrow = MomentsOfRow(year, std::min(local.row + 1, LastRow(year)));
    source.yesterday = MomentsOfRow(year, local.row > 0 ? local.row - 1 : 0);
    source.offset = year.basis.rules.moments.zone.empty() ? 0.0 : local.offset;
    return MakeDayView(source, local.now).next;
}

std::int32_t DayOf(const NextMoment& next) {
    return next.isYesterdays ? -1 : next.isTomorrows ? 1 : 0;
}

}  // namespace

}  // namespace horavex

using namespace horavex;

horavex_status horavex_year_day(const horavex_year* year, std::int32_t day_of_year,
                                horavex_day* day, horavex_error* error) {
    return Answer(error, [&] {
        Require(year != nullptr, "year is NULL");
        RequireRange("day_of_year", day_of_year, 1, horavex_year_days(year));
        RequireRoom("day", day);
        Give(ToldDay(*year, static_cast<std::size_t>(day_of_year) - 1), day);
    });
}

horavex_status horavex_year_next(const horavex_year* year, std::int64_t unix_time,
                                 horavex_next* next, horavex_error* error) {
    return Answer(error, [&] {
        Require(year != nullptr, "year is NULL");
        RequireRoom("next", next);
        const NextMoment found = NextAt(*year, LocalOf(*year, unix_time));
        Give<horavex_next>({0, found.prayer, DayOf(found),
                            unix_time + static_cast<std::int64_t>(found.remainingSeconds)},
                           next);
    });
}
