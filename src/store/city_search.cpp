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
    std::uint32_t other;  // where the matching name begins in the folded other ones, or kOwnName
};

RankedHit Ranked(const CityMatch& match, const ListedCity& city, std::size_t position) {
    const std::uint64_t rank = OrderOf(city.rank);
    return {std::uint64_t{match.match} << 48U | rank << 32U | position,
            static_cast<std::uint32_t>(position), match.other};
}

CityHit CityOf(const std::vector<ListedCity>& cities, const RankedHit& hit) {
    const ListedCity& city = cities[hit.city];
    return {&city, OtherNameAt(city, hit.other), hit.order >> 48U == kWholeName};
}

}  // namespace

std::string DisplayText(const ListedCity& city) {
    const std::string province = city.province.empty() ? "" : ", " + city.province;
    return city.name + province + " - " + city.country;
}

std::string DisplayText(const CityHit& hit) {
    const std::string otherName(hit.otherName);
    return DisplayText(*hit.city) + (otherName.empty() ? "" : " (" + otherName + ")");
}

std::string FoldCityName(const std::string& name) {
    std::string folded = FoldForSearch(name);
    std::erase(folded, '\'');
    std::replace(folded.begin(), folded.end(), '-', ' ');
    return folded;
}

void SetOtherNames(ListedCity& city, const std::string& otherNames) {
    city.otherNames = otherNames;
    city.foldedNames = otherNames.empty() ? std::string() : "," + FoldCityName(otherNames) + ",";
    city.beginnings = BeginningsOf(city.foldedNames);
}

std::vector<CityHit> SearchCities(const std::vector<ListedCity>& cities, const std::string& text) {
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
