#include "engine/zone_clock.h"

#include <cmath>
#include <utility>

#include "base/rounding.h"
#include "engine/year_table.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;
constexpr double kHoursPerDay = 24.0;
constexpr double kMinutesPerDay = 24.0 * 60.0;

UtcSeconds SecondsOf(Date universal) {
    return std::llround((universal - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

}  // namespace

ZoneClock::ZoneClock(std::string zone, const SettingsRecord& record)
    : zone_(std::move(zone)), record_(record) {}

ZoneOffset ZoneClock::OffsetAt(Date universal) const {
    if (!zone_.empty()) {
        return Ports().zoneRules.OffsetAt(zone_, SecondsOf(universal));
    }
    return RecordOffset(std::floor(universal + record_.TimeZone / kHoursPerDay));
}

ZoneOffset ZoneClock::OffsetOfLocal(Date local, Date day) const {
    if (!zone_.empty()) {
        const ZoneRules& rules = Ports().zoneRules;
        return rules.OffsetAt(zone_, MomentOf(rules, zone_, local));
    }
    return RecordOffset(day);
}

Date ZoneClock::UniversalOf(Date local) const {
    return local - OffsetOfLocal(local, std::floor(local)).seconds / kSecondsPerDay;
}

Date ZoneClock::LocalOf(Date universal) const {
    return universal + OffsetAt(universal).seconds / kSecondsPerDay;
}

Date ZoneClock::MinuteOf(Date universal) const {
    return std::round(LocalOf(universal) * kMinutesPerDay) / kMinutesPerDay;
}

ZoneOffset ZoneClock::RecordOffset(Date day) const {
    const bool daylight = IsDaylightDay(day, record_);
    const double hours = record_.TimeZone + (daylight ? 1.0 : 0.0);
    return {NearestInt(hours * kSecondsPerHour), daylight};
}

}  // namespace horavex
