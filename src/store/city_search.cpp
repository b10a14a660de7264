#include "store/city_search.h"

#include <algorithm>
#include <tuple>

#include "base/bytes.h"
#include "base/fault.h"
#include "base/fold.h"
#include "base/int16.h"
#include "base/text.h"
#include "platform/platform.h"
#include "store/location_files.h"

namespace horavex {

namespace {

/// How well a city matches; the smaller the better.
enum Match { kWholeName, kNameThenWord, kNameBeginning, kWordBeginning, kAnyPart, kNone };

bool IsWordCharacter(char c) {
    return (c >= 'a' && c <= 'z') || IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
}

bool BeginsAWord(const std::string& folded, const std::string& text) {
    for (std::size_t at = folded.find(text); at != std::string::npos;
         at = folded.find(text, at + 1)) {
        if (!IsWordCharacter(folded[at - 1])) {  // a match at 0 has been told apart before
            return true;
        }
    }
    return false;
}

Match MatchBeginning(const std::string& folded, std::size_t length) {
    const std::string_view rest = std::string_view(folded).substr(length);
    if (rest.empty() || rest.starts_with(", ") || rest.starts_with(" - ")) {
        return kWholeName;
    }
    return IsWordCharacter(rest.front()) ? kNameBeginning : kNameThenWord;
}

Match MatchOf(const std::string& folded, const std::string& text) {
    const std::size_t at = folded.find(text);
    if (at == std::string::npos) {
        return kNone;
    }
    if (at == 0) {
        return MatchBeginning(folded, text.size());
    }
    return BeginsAWord(folded, text) ? kWordBeginning : kAnyPart;
}

/// Cities without a rank come last.
std::uint16_t OrderOf(std::uint16_t rank) {
    return static_cast<std::uint16_t>(rank - 1);
}

/// The ranks file is an aid of searching alone: without it, equal matches keep their order.
Bytes ReadRanks() {
    try {
        return Ports().programFolder.ReadWhole("Dat\\RI.DAT");
    } catch (const FileFault&) {
        return {};
    }
}

/// cityIndex: of a city that the index can hold.
std::uint16_t RankOf(const Bytes& ranks, std::int16_t cityIndex) {
    const auto offset = static_cast<std::size_t>(cityIndex - kFirstCityIndex) * 2;
    return offset + 2 <= ranks.size() ? static_cast<std::uint16_t>(GetInt16(ranks, offset)) : 0;
}

ListedCity ListCity(std::int16_t cityIndex, const std::string& country, const Bytes& ranks) {
    CityRecord city;
    ReadCity(cityIndex, city);
    ListedCity listed{cityIndex,
                      city.Name,
                      city.Province,
                      country,
                      city.Latitude,
                      city.Longitude,
                      RankOf(ranks, cityIndex),
                      {}};
    listed.folded = FoldForSearch(DisplayText(listed));
    return listed;
}

void ListCountry(std::vector<ListedCity>& cities, std::int16_t number, const Bytes& ranks) {
    CountryRecord country;
    ReadCountry(number, country);
    // A damaged index could otherwise list its cities over and over.
    if (std::ssize(cities) + country.CityCount > CityCount()) {
        throw BoundsFault("Dat\\SI.DAt: the countries hold more cities than Dat\\CI.DAT");
    }
    for (std::int32_t i = 0; i < country.CityCount; ++i) {
        cities.push_back(ListCity(ToInt16(country.FirstCity + i), country.Name, ranks));
    }
}

}  // namespace

std::string DisplayText(const ListedCity& city) {
    const std::string province = city.province.empty() ? "" : ", " + city.province;
    return city.name + province + " - " + city.country;
}

std::vector<ListedCity> ListCities() {
    const Bytes ranks = ReadRanks();
    std::vector<ListedCity> cities;
    OpenLocationFiles();
    const std::int64_t count = CountryCount();
    for (std::int64_t number = 1; number <= count; ++number) {
        ListCountry(cities, ToInt16(number), ranks);
    }
    CloseLocationFiles();
    return cities;
}

std::vector<const ListedCity*> SearchCities(const std::vector<ListedCity>& cities,
                                            const std::string& text) {
    const std::string folded = FoldForSearch(Trim(text));
    using Hit = std::tuple<Match, std::uint16_t, const ListedCity*>;
    std::vector<Hit> hits;
    for (const ListedCity& city : cities) {
        const Match match = folded.empty() ? kNone : MatchOf(city.folded, folded);
        if (match != kNone) {
            hits.emplace_back(match, OrderOf(city.rank), &city);
        }
    }
    std::sort(hits.begin(), hits.end());
    std::vector<const ListedCity*> found;
    std::transform(hits.begin(), hits.end(), std::back_inserter(found),
                   [](const Hit& hit) { return std::get<2>(hit); });
    return found;
}

}  // namespace horavex
