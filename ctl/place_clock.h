#pragma once

#include <optional>
#include <string>

#include "base/date.h"
#include "ctl/command.h"
#include "engine/zone_clock.h"
#include "sky/horizon.h"

namespace horavex {

struct PlaceOptions;

inline constexpr double kSecondsPerHour = 3600.0;

// The working place and its clock, as ApplyPlace has left them, for what counts in Universal Time.

ZoneClock WorkingClock();

/// How far the clock is ahead of Greenwich at a time that it shows. day: the one whose moment it
/// is, by which the daylight hour of the record goes.
ZoneOffset WorkingOffset(Date local, Date day);

Date UniversalOfWorking(Date local);
Date WorkingOfUniversal(Date universal);

/// "2026-06-21T23:14:05+03:00", or null for nothing.
Json WorkingJson(const std::optional<Date>& universal);

/// "+03:00".
std::string OffsetText(const ZoneOffset& offset);

/// A moment of a day, in its hours, as "2026-06-21T23:14:05+03:00"; empty where it does not come.
std::string WorkingStamp(Date day, double hours);

/// What the clock shows, to the nearest minute.
Date WorkingMinuteOf(Date universal);

/// The same as "23:14", or "--:--" for nothing.
std::string WorkingTimeText(const std::optional<Date>& universal);

/// The same beside a day of the calendar: "00:03+1" on the one after it, "23:58-1" on the one
/// before.
std::string WorkingTimeText(const std::optional<Date>& universal, Date day);

/// The working place.
Observer WorkingObserver();

/// The direction of Mecca from there: degrees from north by east, 0 up to 360.
double WorkingQibla();

/// The options of a place and of its clock alone: AddWhereOptions, --zone and --time-zone.
void AddPlaceAndClockOptions(CLI::App& command, PlaceOptions& options);

}  // namespace horavex
