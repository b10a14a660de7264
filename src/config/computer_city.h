#pragma once

#include <cstdint>
#include <optional>

namespace horavex {

/// The largest city that keeps the computer's own zone, of those in the country of the user's
/// locale where there are any; none where the zone has no name or no city keeps it. Throws as
/// CityZones and ListCities do.
std::optional<std::int16_t> CityOfComputersZone();

}  // namespace horavex
