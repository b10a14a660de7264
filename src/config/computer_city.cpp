#include "config/computer_city.h"

#include <limits>
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
        const ListedCity* best = nullptr;
        for (const ListedCity& city : cities) {
            if (zones.Of(city.cityIndex) == zone &&
                (best == nullptr || OrderOf(city, country) < OrderOf(*best, country))) {
                best = &city;
            }
        }
        if (best != nullptr) {
            return best->cityIndex;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
