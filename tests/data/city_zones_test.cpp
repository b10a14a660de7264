#include "store/city_zones.h"

#include "data/built_data.h"
#include "store/city_names.h"
#include "store/city_search.h"
#include "store/location_files.h"

namespace horavex {
namespace {

struct BuiltCityZones : BuiltData {
    std::string ZoneOf(const std::string& search) {
        return zones.Of(SearchCities(cities, search).at(0).city->cityIndex);
    }

    CityList cities = ListCities();
    CityZones zones;
};

TEST_F(BuiltCityZones, EveryCityHasOne) {
    for (const ListedCity& city : cities) {
        ASSERT_NE(zones.Of(city.cityIndex), "") << city.name;
    }
}

TEST_F(BuiltCityZones, KnownCitiesLieInTheirs) {
    EXPECT_EQ(ZoneOf("Mecca"), "Asia/Riyadh");
    EXPECT_EQ(ZoneOf("Cairo"), "Africa/Cairo");
    EXPECT_EQ(ZoneOf("Gaza"), "Asia/Gaza");
    EXPECT_EQ(ZoneOf("Casablanca"), "Africa/Casablanca");
    EXPECT_EQ(ZoneOf("Dublin"), "Europe/Dublin");
    EXPECT_EQ(ZoneOf("Kathmandu"), "Asia/Kathmandu");
    EXPECT_EQ(ZoneOf("New York City"), "America/New_York");
    EXPECT_EQ(ZoneOf("Phoenix"), "America/Phoenix");
    EXPECT_EQ(ZoneOf("St. John's"), "America/St_Johns");
    EXPECT_EQ(ZoneOf("Adelaide"), "Australia/Adelaide");
    EXPECT_EQ(ZoneOf("Auckland"), "Pacific/Auckland");
    EXPECT_EQ(ZoneOf("Apia"), "Pacific/Apia");
    EXPECT_EQ(ZoneOf("Kyiv"), "Europe/Kyiv");
}

TEST_F(BuiltCityZones, OtherNamesStandBesideTheirCities) {
    TextStore texts;
    const auto names = ReadOtherNames(std::ssize(cities), texts);
    const auto cairo = SearchCities(cities, "Cairo").at(0).city->cityIndex - kFirstCityIndex;
    EXPECT_TRUE(names.at(static_cast<std::size_t>(cairo)).starts_with("القاهرة,"));
}

}  // namespace
}  // namespace horavex
