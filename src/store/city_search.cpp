#include "store/city_search.h"

#include <algorithm>
#include <optional>

#include "base/fold.h"
#include "store/city_match.h"

namespace horavex {

namespace {

/// A hit before it is in its place; small, for a single letter hits nearly every city.
struct RankedHit {
    std::uint64_t order;  // the best first: match, rank by population, position in the list
    std::uint32_t city;   // position in the list
    std::uint32_t name;   // the number of the matching other one, or kOwnName
};

RankedHit Ranked(const CityMatch& match, const ListedCity& city, std::size_t position) {
    const std::uint64_t rank = OrderOf(city.rank);
    return {std::uint64_t{match.match} << 48U | rank << 32U | position,
            static_cast<std::uint32_t>(position), match.name};
}

CityHit CityOf(Cities cities, const RankedHit& hit) {
    const ListedCity& city = cities[hit.city];
    return {&city, OtherNameOf(city, hit.name), hit.order >> 48U == kWholeName};
}

}  // namespace

std::string DisplayText(const ListedCity& city) {
    std::string text(city.name);
    if (!city.province.empty()) {
        text.append(", ").append(city.province);
    }
    return text.append(" - ").append(city.country);
}

std::string DisplayText(const CityHit& hit) {
    const std::string otherName(hit.otherName);
    return DisplayText(*hit.city) + (otherName.empty() ? "" : " (" + otherName + ")");
}

std::string FoldCityName(std::string_view name) {
    std::string folded;
    while (!name.empty()) {
        folded += TakeFoldedOfName(name);
    }
    return folded;
}

std::vector<CityHit> SearchCities(Cities cities, const std::string& text) {
    const Wanted wanted = WantedOf(text);
    std::vector<RankedHit> ranked;
    for (std::size_t i = 0; i < cities.size() && !wanted.own.empty(); ++i) {
        if (const auto match = MatchOf(cities[i], wanted)) {
            ranked.push_back(Ranked(*match, cities[i], i));
        }
    }
    std::ranges::sort(ranked, {}, &RankedHit::order);
    std::vector<CityHit> hits;
    hits.reserve(ranked.size());
    for (const RankedHit& hit : ranked) {
        hits.push_back(CityOf(cities, hit));
    }
    return hits;
}

}  // namespace horavex
