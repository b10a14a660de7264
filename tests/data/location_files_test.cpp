#include "store/location_files.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <set>
#include <tuple>

#include "base/fold.h"
#include "base/text.h"
#include "data/built_data.h"
#include "store/city_search.h"

namespace horavex {
namespace {

constexpr std::size_t kLargestShortPosition = 32767;

/// The order of the gazetteer: folded, without apostrophes, and every other run of characters
/// that are neither letters nor digits as one blank.
std::string SortKey(const std::string& name) {
    std::string key;
    for (const char c : FoldForSearch(name)) {
        if ((c >= 'a' && c <= 'z') || IsDigit(c)) {
            key += c;
        } else if (c != '\'' && !key.ends_with(' ')) {
            key += ' ';
        }
    }
    return std::string(Trim(key));
}

std::vector<std::string> SourceCountries() {
    std::ifstream file(SourcePath("data/gazetteer/countries.tsv"));
    std::vector<std::string> names;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        names.push_back(Split(line, '\t').at(1));
    }
    return names;
}

struct LocationFiles : BuiltData {
    LocationFiles() { OpenLocationFiles(); }

    std::vector<CountryRecord> Countries() {
        std::vector<CountryRecord> countries(static_cast<std::size_t>(CountryCount()));
        for (std::size_t i = 0; i < countries.size(); ++i) {
            ReadCountry(static_cast<std::int16_t>(i + 1), countries[i]);
        }
        return countries;
    }

    std::size_t SizeOf(const char* file) { return folder.ReadWhole(file).size(); }
};

TEST_F(LocationFiles, HoldACrowdOfCitiesThatTheIndexCanNumber) {
    EXPECT_GE(CityCount(), 40000);
    EXPECT_LE(CityCount(), 64768);
}

TEST_F(LocationFiles, EveryCountryOfTheSourceHasACity) {
    std::vector<std::string> names;
    for (const CountryRecord& country : Countries()) {
        EXPECT_GE(country.CityCount, 1) << country.Name;
        names.push_back(country.Name);
    }
    EXPECT_EQ(names, SourceCountries());
    EXPECT_GT(names.size(), 240U);
}

TEST_F(LocationFiles, CitiesOfTheCountriesFollowEachOther) {
    std::int32_t next = kFirstCityIndex;
    for (const CountryRecord& country : Countries()) {
        EXPECT_EQ(country.FirstCity, next) << country.Name;
        next += country.CityCount;
    }
    EXPECT_EQ(next, kFirstCityIndex + CityCount());
}

TEST_F(LocationFiles, CountriesStandInTheOrderOfTheAlphabet) {
    const auto countries = Countries();
    EXPECT_TRUE(std::is_sorted(countries.begin(), countries.end(),
                               [](const CountryRecord& a, const CountryRecord& b) {
                                   return SortKey(a.Name) < SortKey(b.Name);
                               }));
}

TEST_F(LocationFiles, CitiesOfACountryStandInTheOrderOfTheAlphabet) {
    const auto cities = ListCities();
    for (std::size_t i = 1; i < cities.size(); ++i) {
        if (cities[i].country == cities[i - 1].country) {
            ASSERT_LE(SortKey(std::string(cities[i - 1].name)),
                      SortKey(std::string(cities[i].name)))
                << cities[i - 1].name << " before " << cities[i].name;
        }
    }
}

TEST_F(LocationFiles, NameAndProvinceTellTheCitiesOfACountryApart) {
    std::set<std::tuple<std::string, std::string, std::string>> seen;
    for (const ListedCity& city : ListCities()) {
        ASSERT_TRUE(seen.emplace(city.country, city.name, city.province).second)
            << city.name << ", " << city.province << " - " << city.country;
    }
}

TEST_F(LocationFiles, EveryNameCanBeShown) {
    for (const ListedCity& city : ListCities()) {
        ASSERT_FALSE(city.name.empty()) << city.cityIndex;
        ASSERT_EQ(Trim(city.name), city.name) << city.cityIndex;
        ASSERT_EQ(city.name.find('\x7F'), std::string::npos) << city.cityIndex;
        ASSERT_TRUE(std::none_of(city.name.begin(), city.name.end(), [](char c) {
            return c >= 0 && c < ' ';
        })) << city.cityIndex;
    }
}

TEST_F(LocationFiles, PackedNamesStayWithinTheReachOfTheirIndexes) {
    EXPECT_LT(SizeOf("Dat\\P.DAT"), kLargestShortPosition + 1);
    EXPECT_LT(SizeOf("Dat\\S.DAT"), kLargestShortPosition + 1);
    EXPECT_LT(SizeOf("Dat\\T.DAT"), kLargestShortPosition);
}

TEST_F(LocationFiles, EqualProvinceNamesShareOneRecord) {
    std::set<std::string> names;
    CityRecord city;
    const auto count = static_cast<std::int16_t>(SizeOf("Dat\\PI.DAT") / 2);
    for (city.ProvinceIndex = 1; city.ProvinceIndex <= count; ++city.ProvinceIndex) {
        EXPECT_TRUE(names.insert(ReadProvince(city)).second) << city.Province;
    }
    EXPECT_GT(names.size(), 1000U);
}

TEST_F(LocationFiles, PlaceWithoutAQiblaIsMecca) {
    LocationRecord location;
    EXPECT_EQ(LookupLocation(5183, location), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(location.City.Latitude, 2143);
    EXPECT_EQ(location.City.Longitude, 3983);
}

TEST_F(LocationFiles, FirstAndLastCityAreWhole) {
    LocationRecord location;
    const auto last = static_cast<std::int16_t>(kFirstCityIndex + CityCount() - 1);
    EXPECT_THAT(LookupLocation(kFirstCityIndex, location), testing::EndsWith(" - Afghanistan"));
    EXPECT_THAT(LookupLocation(last, location), testing::EndsWith(" - Zimbabwe"));
    EXPECT_FALSE(location.City.Name.empty());
}

TEST_F(LocationFiles, RanksNumberTheCitiesByPopulation) {
    std::vector<std::size_t> ranks;
    for (const ListedCity& city : ListCities()) {
        ranks.push_back(city.rank);
    }
    std::sort(ranks.begin(), ranks.end());
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        ASSERT_EQ(ranks[i], i + 1);
    }
}

struct KnownCity {
    const char* search;
    const char* country;
    double latitude;   // degrees, to the nearest tenth, from an atlas
    double longitude;  // degrees, the same
};

constexpr KnownCity kKnownCities[] = {
    {"Cairo", "Egypt", 30.0, 31.2},
    {"Jakarta", "Indonesia", -6.2, 106.8},
    {"London", "United Kingdom", 51.5, -0.1},
    {"New York", "United States", 40.7, -74.0},
    {"Sydney", "Australia", -33.9, 151.2},
    {"Istanbul", "Turkey", 41.0, 29.0},
    {"Karachi", "Pakistan", 24.9, 67.0},
    {"São Paulo", "Brazil", -23.5, -46.6},
    {"Cape Town", "South Africa", -33.9, 18.4},
    {"Tokyo", "Japan", 35.7, 139.7},
    {"Medina", "Saudi Arabia", 24.5, 39.6},
    {"Casablanca", "Morocco", 33.6, -7.6},
    {"Suva", "Fiji", -18.1, 178.4},
    {"Anchorage", "United States", 61.2, -149.9},
};

TEST_F(LocationFiles, LargestCityOfAKnownNameLiesWhereItShould) {
    const auto cities = ListCities();
    for (const KnownCity& known : kKnownCities) {
        const auto found = SearchCities(cities, known.search);
        ASSERT_FALSE(found.empty()) << known.search;
        EXPECT_EQ(found[0].city->country, known.country) << known.search;
        EXPECT_NEAR(found[0].city->latitude / 100.0, known.latitude, 0.25) << known.search;
        EXPECT_NEAR(found[0].city->longitude / 100.0, known.longitude, 0.25) << known.search;
    }
}

struct KnownName {
    const char* search;
    const char* city;
};

TEST_F(LocationFiles, LargestCityOfAKnownOtherNameComesFirst) {
    const auto cities = ListCities();
    for (const KnownName& known :
         {KnownName{"القاهرة", "Cairo"}, KnownName{"مكة", "Mecca"}, KnownName{"Москва", "Moscow"},
          KnownName{"東京", "Tokyo"}, KnownName{"München", "Munich"}, KnownName{"Cologne", "Köln"},
          KnownName{"Köln", "Köln"}, KnownName{"Kyiv", "Kyiv"}, KnownName{"Kiev", "Kyiv"},
          KnownName{"Київ", "Kyiv"}, KnownName{"Peking", "Beijing"}, KnownName{"서울", "Seoul"}}) {
        const auto found = SearchCities(cities, known.search);
        ASSERT_FALSE(found.empty()) << known.search;
        EXPECT_EQ(found[0].city->name, known.city) << known.search;
    }
}

}  // namespace
}  // namespace horavex
