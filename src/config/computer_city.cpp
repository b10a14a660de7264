#include "config/computer_city.h"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "base/fold.h"
#include "platform/platform.h"
#include "store/city_search.h"
#include "store/city_zones.h"

namespace horavex {

namespace {

/// The cities of a zone of the database.
std::vector<ListedCity> CitiesIn(const std::string& zone) {
    const CityZones zones;
    auto cities = ListCities();
    std::erase_if(cities, [&](const ListedCity& city) { return zones.Of(city.cityIndex) != zone; });
    return cities;
}

/// What is smaller comes first: the user's country, then the larger city. Those without a rank
/// come last.
std::tuple<bool, int> OrderOf(const ListedCity& city, const std::string& country) {
    const int rank = city.rank == 0 ? std::numeric_limits<int>::max() : int{city.rank};
    return {FoldForSearch(city.country) != country, rank};
}

}  // namespace

std::optional<std::int16_t> CityOfComputersZone() {
    const std::string country = FoldForSearch(Ports().whereabouts.Country());
    for (const std::string& zone : Ports().whereabouts.ZoneNames()) {
        const auto cities = CitiesIn(zone);
        const auto best = std::ranges::min_element(
            cities, {}, [&](const ListedCity& city) { return OrderOf(city, country); });
        if (best != cities.end()) {
            return best->cityIndex;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
