#include "config/computer_city.h"

#include <algorithm>
#include <limits>
#include <ranges>
#include <string>
#include <tuple>

#include "base/fold.h"
#include "platform/platform.h"
#include "store/city_search.h"
#include "store/city_zones.h"

namespace horavex {

namespace {

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
        const CityZones zones;
        const CityList cities = ListCities();
        auto there = std::views::filter(
            cities, [&](const ListedCity& city) { return zones.Of(city.cityIndex) == zone; });
        const auto best = std::ranges::min_element(
            there, {}, [&](const ListedCity& city) { return OrderOf(city, country); });
        if (best != there.end()) {
            return best->cityIndex;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
