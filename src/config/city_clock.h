#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/date.h"
#include "store/zone_year.h"

namespace horavex {

// The clock of a city, as the zone database has it. A damaged file of zones counts as none here.

/// The name of a city's zone, or the one that an option names in its place; empty where none is
/// known. Throws as CityZones does.
std::string ZoneNameOf(std::int16_t cityIndex);

/// Why the clock of a city is not known.
enum class CityClock { kKnown, kNoZone, kNotInDatabase };

CityClock StateOfCityClock(std::int16_t cityIndex);

/// What the record holds of a city's zone in the present year; none where its clock is not known.
std::optional<ZoneYear> FindCityZone(std::int16_t cityIndex);

/// Hours that the city's clock is ahead of Greenwich at noon of a day, daylight saving included.
std::optional<double> CityHoursOn(std::int16_t cityIndex, Date day);

/// Brings the zone and the daylight days of the accepted settings up to the present year and
/// stores them, where an option lets them follow the city's zone.
void KeepAcceptedZone();

}  // namespace horavex
