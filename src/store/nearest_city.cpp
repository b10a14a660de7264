#include "store/nearest_city.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/angle.h"
#include "store/city_search.h"

namespace horavex {

namespace {

/// A point of the sphere as a unit vector's three parts.
using SpherePoint = std::array<double, 3>;

SpherePoint OnSphere(double latitude, double longitude) {
    const double north = DegToRad(latitude);
    const double east = DegToRad(longitude);
    return {std::cos(north) * std::cos(east), std::cos(north) * std::sin(east), std::sin(north)};
}

double Apart(const SpherePoint& a, const SpherePoint& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

}  // namespace

std::optional<std::int16_t> NearestCity(double latitude, double longitude) {
    const SpherePoint here = OnSphere(latitude, longitude);
    const auto cities = ListCities();
    const auto nearest = std::ranges::min_element(cities, {}, [&](const ListedCity& city) {
        return Apart(here, OnSphere(StoredCoord(city.latitude), StoredCoord(city.longitude)));
    });
    return nearest == cities.end() ? std::nullopt : std::optional(nearest->cityIndex);
}

}  // namespace horavex
