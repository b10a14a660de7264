#pragma once

#include <cstdint>
#include <optional>

namespace horavex {

/// The city nearest to a point; none where there are no cities. Degrees, north and east positive.
/// Throws as ListCities does.
std::optional<std::int16_t> NearestCity(double latitude, double longitude);

}  // namespace horavex
