#include "ctl/place_clock.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/rounding.h"
#include "ctl/number_range.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "engine/solar_event.h"
#include "geo/qibla.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr double kHoursPerDay = 24.0;

}  // namespace

ZoneClock WorkingClock() {
    return {ChosenOptions.zone, Settings};
}

ZoneOffset WorkingOffset(Date local, Date day) {
    return WorkingClock().OffsetOfLocal(local, day);
}

Date UniversalOfWorking(Date local) {
    return WorkingClock().UniversalOf(local);
}

Date WorkingOfUniversal(Date universal) {
    return WorkingClock().LocalOf(universal);
}

Json WorkingJson(const std::optional<Date>& universal) {
    if (!universal) {
        return nullptr;
    }
    const Date local = WorkingOfUniversal(*universal);
    const Date day = std::floor(local);
    return IsoMoment(day, (local - day) * kHoursPerDay,
                     WorkingClock().OffsetAt(*universal).seconds / kSecondsPerHour);
}

std::string OffsetText(const ZoneOffset& offset) {
    const int minutes = std::abs(offset.seconds) / 60;
    char text[32];
    std::snprintf(text, sizeof text, "%c%02d:%02d", offset.seconds < 0 ? '-' : '+', minutes / 60,
                  minutes % 60);
    return text;
}

std::string WorkingStamp(Date day, double hours) {
    if (std::fabs(hours) >= NoEvent) {
        return {};
    }
    const Date local = day + RoundHalfEven(hours * kSecondsPerHour) / kSecondsPerDay;
    return IsoMoment(day, hours, WorkingOffset(local, day).seconds / kSecondsPerHour);
}

Date WorkingMinuteOf(Date universal) {
    return WorkingClock().MinuteOf(universal);
}

std::string WorkingTimeText(const std::optional<Date>& universal) {
    constexpr int kSecondsAMinute = 60;
    return universal ? IsoTime(SecondOfDay(WorkingMinuteOf(*universal)) / kSecondsAMinute)
                     : "--:--";
}

std::string WorkingTimeText(const std::optional<Date>& universal, Date day) {
    const long away =
        universal ? std::lround(std::floor(WorkingMinuteOf(*universal)) - std::floor(day)) : 0;
    const std::string time = WorkingTimeText(universal);
    return away == 0 ? time : time + (away > 0 ? "+" : "") + std::to_string(away);
}

Observer WorkingObserver() {
    return {StoredCoord(Location.City.Latitude), StoredCoord(Location.City.Longitude)};
}

double WorkingQibla() {
    const Observer place = WorkingObserver();
    const double degrees =
        RadToDeg(BearingOfMecca(DegToRad(place.latitude), -DegToRad(place.longitude)));
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

void AddPlaceAndClockOptions(CLI::App& command, PlaceOptions& options) {
    AddWhereOptions(command, options);
    command.add_option("--zone", options.zone, "Hours east of Greenwich, fractions allowed")
        ->check(NumberFrom(-12.0, 12.0));
    AddTimeZoneOption(command, options.rules);
}

}  // namespace horavex
