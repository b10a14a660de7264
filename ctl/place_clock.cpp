#include "ctl/place_clock.h"

#include <cmath>

#include "base/rounding.h"
#include "ctl/number_range.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "engine/year_table.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;
constexpr double kHoursPerDay = 24.0;
constexpr double kMinutesPerDay = 24.0 * 60.0;

ZoneOffset RecordOffset(Date day) {
    const bool daylight = IsDaylightDay(day);
    const double hours = Settings.TimeZone + (daylight ? 1.0 : 0.0);
    return {NearestInt(hours * kSecondsPerHour), daylight};
}

UtcSeconds SecondsOf(Date universal) {
    return std::llround((universal - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

ZoneOffset OffsetAtUniversal(Date universal) {
    if (!ChosenOptions.zone.empty()) {
        return Ports().zoneRules.OffsetAt(ChosenOptions.zone, SecondsOf(universal));
    }
    return RecordOffset(std::floor(universal + Settings.TimeZone / kHoursPerDay));
}

}  // namespace

ZoneOffset WorkingOffset(Date local, Date day) {
    if (!ChosenOptions.zone.empty()) {
        const ZoneRules& rules = Ports().zoneRules;
        return rules.OffsetAt(ChosenOptions.zone, MomentOf(rules, ChosenOptions.zone, local));
    }
    return RecordOffset(day);
}

Date UniversalOfWorking(Date local) {
    return local - WorkingOffset(local, std::floor(local)).seconds / kSecondsPerDay;
}

Date WorkingOfUniversal(Date universal) {
    return universal + OffsetAtUniversal(universal).seconds / kSecondsPerDay;
}

Json WorkingJson(const std::optional<Date>& universal) {
    if (!universal) {
        return nullptr;
    }
    const Date local = WorkingOfUniversal(*universal);
    const Date day = std::floor(local);
    return IsoMoment(day, (local - day) * kHoursPerDay,
                     OffsetAtUniversal(*universal).seconds / kSecondsPerHour);
}

Date WorkingMinuteOf(Date universal) {
    return std::round(WorkingOfUniversal(universal) * kMinutesPerDay) / kMinutesPerDay;
}

std::string WorkingTimeText(const std::optional<Date>& universal) {
    constexpr int kSecondsAMinute = 60;
    return universal ? IsoTime(SecondOfDay(WorkingMinuteOf(*universal)) / kSecondsAMinute)
                     : "--:--";
}

Observer WorkingObserver() {
    return {StoredCoord(Location.City.Latitude), StoredCoord(Location.City.Longitude)};
}

void AddPlaceAndClockOptions(CLI::App& command, PlaceOptions& options) {
    AddWhereOptions(command, options);
    command.add_option("--zone", options.zone, "Hours east of Greenwich, fractions allowed")
        ->check(NumberFrom(-12.0, 12.0));
    AddTimeZoneOption(command, options.rules);
}

}  // namespace horavex
