#include "store/zone_year.h"

#include <algorithm>

#include "base/int16.h"

namespace horavex {

namespace {

constexpr std::int32_t kDaylightHour = 3600;
constexpr double kSecondsPerHour = 3600.0;

/// The two offsets of a year that is half daylight saving and half not, whichever of them the
/// zone's data mark.
bool HasDaylightHour(const std::vector<ZoneOffset>& offsets, std::int32_t lowest) {
    const bool marked = std::ranges::any_of(offsets, &ZoneOffset::daylight);
    return marked && std::ranges::all_of(offsets, [&](const ZoneOffset& offset) {
               return offset.seconds == lowest || offset.seconds == lowest + kDaylightHour;
           });
}

std::int16_t NumberOf(std::size_t index) {
    return ToInt16(static_cast<std::int64_t>(index) + 1);
}

/// Days whose clock is ahead, taken round the year: the first behind one that is not, and the
/// last of that run.
void FindDays(const std::vector<ZoneOffset>& offsets, std::int32_t lowest, ZoneYear& year) {
    const std::size_t days = offsets.size();
    const auto ahead = [&](std::size_t day) { return offsets[day % days].seconds > lowest; };
    for (std::size_t day = 0; day < days; ++day) {
        if (ahead(day) && !ahead(day + days - 1)) {
            std::size_t last = day;
            while (ahead(last + 1)) {
                ++last;
            }
            year.daylight = true;
            year.dstStart = NumberOf(day);
            year.dstEnd = NumberOf(last % days);
            return;
        }
    }
}

double HoursInRecord(std::int32_t seconds) {
    const double hours = seconds / kSecondsPerHour;
    return hours > 12.0 ? hours - 24.0 : hours;
}

}  // namespace

ZoneYear ZoneYearOf(const std::vector<ZoneOffset>& offsets, std::size_t day) {
    const std::int32_t lowest = std::ranges::min(offsets, {}, &ZoneOffset::seconds).seconds;
    if (!HasDaylightHour(offsets, lowest)) {
        return {.hours = HoursInRecord(offsets[day].seconds)};
    }
    ZoneYear year{.hours = HoursInRecord(lowest)};
    FindDays(offsets, lowest, year);
    return year;
}

ZoneYear FindZoneYear(const ZoneRules& rules, const std::string& zone, Date day) {
    const int year = CivilFromDate(day).year;
    const Date first = DateSerial(year, 1, 1);
    std::vector<ZoneOffset> offsets;
    for (Date date = first; date < DateSerial(year + 1, 1, 1); date += 1.0) {
        offsets.push_back(rules.OffsetAt(zone, MomentOf(rules, zone, date + 0.5)));
    }
    return ZoneYearOf(offsets, static_cast<std::size_t>(day - first));
}

void TakeZoneYear(const ZoneYear& zone, SettingsRecord& record) {
    record.TimeZone = zone.hours;
    record.DstEnabled = zone.daylight ? 1 : 0;
    if (zone.daylight) {
        record.DstStart = zone.dstStart;
        record.DstEnd = zone.dstEnd;
    }
}

}  // namespace horavex
