#include "ctl/named_city.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <optional>

#include "base/fold.h"
#include "base/int16.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "ctl/command.h"
#include "ctl/country_codes.h"
#include "store/city_index.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/nearest_city.h"

namespace horavex {

namespace {

constexpr int kFarOut = 10;                // so many ranks of the best known to one of the next
constexpr std::size_t kMostShown = 12;     // candidates
constexpr std::uint16_t kNoRank = 0xFFFF;  // behind all others

/// "Springfield, Illinois - United States" as its name and where it lies.
struct CityWords {
    std::string name;
    std::vector<std::string> areas;  // folded
};

CityWords WordsOf(std::string text) {
    const std::size_t dash = text.find(" - ");
    if (dash != std::string::npos) {
        text.replace(dash, 3, ",");
    }
    const auto parts = Split(text, ',');
    CityWords words{std::string(Trim(parts.front())), {}};
    for (std::size_t part = 1; part < parts.size(); ++part) {
        words.areas.push_back(FoldForSearch(Trim(parts[part])));
    }
    return words;
}

/// True for a city whose province or country each of the areas is, or begins; wholly a country's
/// code counts, too.
bool LiesIn(const ListedCity& city, const std::vector<std::string>& areas, bool wholly) {
    const std::string names[] = {FoldForSearch(city.province), FoldForSearch(city.country)};
    return std::ranges::all_of(areas, [&](const std::string& area) {
        return (wholly && CountryOfCode(area) == city.country) ||
               std::ranges::any_of(names, [&](const std::string& name) {
                   return wholly ? name == area : name.starts_with(area);
               });
    });
}

std::vector<CityHit> HitsIn(const std::vector<CityHit>& hits, const std::vector<std::string>& areas,
                            bool wholly) {
    std::vector<CityHit> found;
    std::ranges::copy_if(hits, std::back_inserter(found),
                         [&](const CityHit& hit) { return LiesIn(*hit.city, areas, wholly); });
    return found;
}

/// A name may have a comma or a dash of its own.
std::vector<CityHit> FindHits(Cities cities, const std::string& text, const CityWords& words) {
    const auto named = SearchCities(cities, words.name);
    auto hits = HitsIn(named, words.areas, true);
    if (hits.empty()) {
        hits = HitsIn(named, words.areas, false);
    }
    return hits.empty() ? SearchCities(cities, text) : hits;
}

/// The name of a hit that the search has gone by.
std::string FoundName(const CityHit& hit) {
    return FoldForSearch(hit.otherName.empty() ? hit.city->name : hit.otherName);
}

std::uint16_t RankOf(const CityHit& hit) {
    return hit.city->rank == 0 ? kNoRank : hit.city->rank;
}

/// Those that are as good as the first one: all with that very name, be it their own or another as
/// the first one's is, unless that one is known far better. The search has put them into their
/// order.
std::vector<CityHit> EquallyGood(const std::vector<CityHit>& hits, const std::string& name) {
    const std::string folded = FoldForSearch(name);
    const CityHit& first = hits.front();
    if (FoundName(first) != folded) {
        return {first};
    }
    std::vector<CityHit> equal;
    const int limit = RankOf(first) * kFarOut;
    std::ranges::copy_if(hits, std::back_inserter(equal), [&](const CityHit& hit) {
        return FoundName(hit) == folded && hit.otherName.empty() == first.otherName.empty() &&
               RankOf(hit) < limit;
    });
    return equal;
}

/// True where the best known of them alone is written as typed, accents and all: Apia in Samoa
/// stands before Apía in Colombia.
bool FirstIsMeant(const std::vector<CityHit>& equal, const std::string& name) {
    const auto isAsTyped = [&](const CityHit& hit) {
        return EqualsIgnoringCase(hit.city->name, name);
    };
    return isAsTyped(equal.front()) && std::ranges::count_if(equal, isAsTyped) == 1;
}

std::string SayingOf(const ListedCity& city) {
    std::string saying("  --city \"");
    saying += city.name;
    for (const std::string_view area : {city.province, city.country}) {
        if (!area.empty()) {
            saying.append(", ").append(area);
        }
    }
    return saying + "\" or --city-index " + std::to_string(city.cityIndex) + "\n";
}

[[noreturn]] void RefuseShared(const std::string& text, const std::vector<CityHit>& hits) {
    const std::size_t shown = std::min(hits.size(), kMostShown);
    std::string lines;
    for (std::size_t hit = 0; hit < shown; ++hit) {
        lines += SayingOf(*hits[hit].city);
    }
    std::cerr << WithoutControls(lines);
    const std::string rest =
        shown < hits.size() ? ", the largest of them above" : ", which stand above";
    RefuseUsage("\"" + text + "\" may be " + std::to_string(hits.size()) + " cities" + rest);
}

/// The city that is meant among hits, of which there are some.
std::int16_t ChooseOf(const std::vector<CityHit>& hits, const std::string& text,
                      const std::string& name) {
    const auto equal = EquallyGood(hits, name);
    if (equal.size() > 1 && !FirstIsMeant(equal, name)) {
        RefuseShared(text, equal);
    }
    return equal.front().city->cityIndex;
}

/// Nothing goes before a whole name, so that the few cities that may have it tell as much as all.
std::optional<std::int16_t> CityByWholeName(const std::string& text, const CityWords& words) {
    const auto few = CitiesThatMayBe(words.name);
    if (!few) {
        return std::nullopt;
    }
    const auto hits = HitsIn(SearchCities(*few, words.name), words.areas, true);
    return !hits.empty() && hits.front().isWholeName
               ? std::optional(ChooseOf(hits, text, words.name))
               : std::nullopt;
}

[[noreturn]] void RefusePoint(const std::string& point) {
    RefuseUsage("--near wants degrees such as 51.5,-0.12, not \"" + point + "\"");
}

/// A number of degrees up to the largest on either side.
double DegreesOf(const std::string& text, double largest, const std::string& point) {
    double degrees = 0.0;
    if (!CLI::detail::lexical_cast(text, degrees) || !(std::fabs(degrees) <= largest)) {
        RefusePoint(point);
    }
    return degrees;
}

}  // namespace

std::int16_t CityOfText(const std::string& text) {
    const CityWords words = WordsOf(text);
    if (const auto city = CityByWholeName(text, words)) {
        return *city;
    }
    const auto cities = ListCities();
    const auto hits = FindHits(cities, text, words);
    if (hits.empty()) {
        RefuseUsage("no city matches \"" + text + "\"");
    }
    return ChooseOf(hits, text, words.name);
}

std::int16_t CityOfIndex(int index) {
    OpenCityFiles();
    const std::int64_t last = kFirstCityIndex + CityCount() - 1;
    CloseCityFiles();
    if (index < kFirstCityIndex || index > last) {
        RefuseUsage("city indexes run from " + std::to_string(kFirstCityIndex) + " to " +
                    std::to_string(last));
    }
    return ToInt16(index);
}

std::int16_t CityNear(const std::string& point) {
    const auto parts = Split(point, ',');
    if (parts.size() != 2) {
        RefusePoint(point);
    }
    const auto nearest =
        NearestCity(DegreesOf(parts[0], 90.0, point), DegreesOf(parts[1], 180.0, point));
    if (!nearest) {
        RefuseUsage("there is no city near \"" + point + "\"");
    }
    return *nearest;
}

}  // namespace horavex
