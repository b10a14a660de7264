#include "ctl/ctl_json.h"

namespace horavex {
namespace {

std::vector<std::string> CountriesOf(const Json& cities) {
    std::vector<std::string> countries;
    for (const Json& city : cities) {
        countries.push_back(city["country"]);
    }
    return countries;
}

TEST(CtlCities, EachCityHasTheAgreedKeysAndTypes) {
    const Json cities = JsonOf(Ctl(), "cities --index 5183");
    ASSERT_EQ(cities.size(), 1U);
    EXPECT_THAT(KeysOf(cities[0]), testing::ElementsAre("index", "name", "province", "country",
                                                        "latitude", "longitude"));
    EXPECT_EQ(cities[0]["index"], 5183);
    EXPECT_EQ(cities[0]["name"], "Mecca");
    EXPECT_EQ(cities[0]["province"], "Mecca");
    EXPECT_EQ(cities[0]["country"], "Saudi Arabia");
    EXPECT_EQ(cities[0]["latitude"], 21.43);
    EXPECT_EQ(cities[0]["longitude"], 39.83);
}

TEST(CtlCities, SearchPutsTheBestMatchFirst) {
    EXPECT_EQ(JsonOf(Ctl(), "cities --search mecca")[0]["index"], 5183);
    EXPECT_EQ(JsonOf(Ctl(), "cities --search", {"new york"})[0]["name"], "New York City");
}

TEST(CtlCities, SearchPassesOverCaseAndAccents) {
    const Json city = JsonOf(Ctl(), "cities --limit 1 --search", {"SAO PAULO"})[0];
    EXPECT_EQ(city["name"], "São Paulo");
    EXPECT_EQ(city["country"], "Brazil");
}

TEST(CtlCities, HitByAnotherNameSaysWhich) {
    const Json city = JsonOf(Ctl(), "cities --limit 1 --search", {"القاهرة"})[0];
    EXPECT_EQ(city["name"], "Cairo");
    EXPECT_EQ(city["otherName"], "القاهرة");
    EXPECT_FALSE(JsonOf(Ctl(), "cities --limit 1 --search cairo")[0].contains("otherName"));
    EXPECT_THAT(Ctl().Run("cities --limit 1 --search Kiev").out,
                testing::EndsWith("\tKyiv, Kyiv City - Ukraine (Kiev)\n"));
}

TEST(CtlCities, LimitCutsTheList) {
    const Json ten = JsonOf(Ctl(), "cities --search san --limit 10");
    const Json three = JsonOf(Ctl(), "cities --search san --limit 3");
    ASSERT_EQ(ten.size(), 10U);
    EXPECT_EQ(three, Json({ten[0], ten[1], ten[2]}));
}

TEST(CtlCities, CountryKeepsItsOwnCities) {
    const Json cities = JsonOf(Ctl(), "cities --country egypt");
    ASSERT_GT(cities.size(), 50U);
    EXPECT_THAT(CountriesOf(cities), testing::Each("Egypt"));
}

TEST(CtlCities, FiltersWorkTogether) {
    const Json cities = JsonOf(Ctl(), "cities --search mecca --country", {"united states"});
    ASSERT_GE(cities.size(), 1U);
    EXPECT_THAT(CountriesOf(cities), testing::Each("United States"));
    EXPECT_EQ(JsonOf(Ctl(), "cities --index 5183 --country Egypt"), Json::array());
}

TEST(CtlCities, WithoutAFilterListsAllInTheOrderOfTheirIndexes) {
    const Json cities = JsonOf(Ctl(), "cities");
    ASSERT_GE(cities.size(), 40000U);
    int index = -32000;
    for (const Json& city : cities) {
        ASSERT_EQ(city["index"], index++);
    }
}

TEST(CtlCities, NothingFoundIsAnEmptyList) {
    EXPECT_EQ(JsonOf(Ctl(), "cities --search xyzzyx"), Json::array());
    EXPECT_EQ(JsonOf(Ctl(), "cities --index 32767"), Json::array());
}

TEST(CtlCities, TextForPeopleHasOneLineACity) {
    EXPECT_EQ(Ctl().Run("cities --index 5183").out, "5183\tMecca, Mecca - Saudi Arabia\n");
}

}  // namespace
}  // namespace horavex
