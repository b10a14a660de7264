#include "store/best_cities.h"

#include "base/fold.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct BestCitiesTest : testing::Test {
    void Add(const std::string& name, std::uint16_t rank, const std::string& otherNames = "") {
        cities.push_back(
            {0, name, "", "Nowhere", 0, 0, rank, FoldForSearch(name + " - Nowhere"), "", ""});
        SetOtherNames(cities.back(), otherNames);
    }

    std::vector<std::string> Best(const std::string& text, std::size_t most) const {
        std::vector<std::string> names;
        for (const CityHit& hit : BestCities(cities).Find(text, most)) {
            names.push_back(hit.city->name);
        }
        return names;
    }

    std::vector<ListedCity> cities;
};

TEST_F(BestCitiesTest, BetterMatchesGoBeforeHigherRanksHoweverFewAreWanted) {
    Add("Kansan City", 1);
    Add("San City", 2);
    Add("Port San", 3);
    Add("San", 4);
    EXPECT_THAT(Best("san", 1), ElementsAre("San"));
    EXPECT_THAT(Best("san", 2), ElementsAre("San", "San City"));
    EXPECT_THAT(Best("san", 3), ElementsAre("San", "San City", "Port San"));
    EXPECT_THAT(Best("san", 9), ElementsAre("San", "San City", "Port San", "Kansan City"));
}

TEST_F(BestCitiesTest, EqualMatchesComeByRankThenInTheirOrder) {
    Add("Sanaa", 0);
    Add("Sanba", 7);
    Add("Sanca", 0);
    Add("Sanda", 2);
    EXPECT_THAT(Best("san", 3), ElementsAre("Sanda", "Sanba", "Sanaa"));
}

TEST_F(BestCitiesTest, OtherNamesAreFound) {
    Add("Mecca", 1, "Mekka,La Mecque");
    Add("Laval", 2);
    EXPECT_THAT(Best("mek", 5), ElementsAre("Mecca"));
    EXPECT_THAT(Best("la", 5), ElementsAre("Laval", "Mecca"));
    EXPECT_EQ(BestCities(cities).Find("la mecque", 1).at(0).otherName, "La Mecque");
    EXPECT_TRUE(BestCities(cities).Find("la mecque", 1).at(0).isWholeName);
}

TEST_F(BestCitiesTest, NamesOfAnyLengthAreFoundWhole) {
    const std::string longName(300, 'a');
    Add("Y", 1);
    Add(longName, 2);
    Add("Yb", 3);
    EXPECT_TRUE(BestCities(cities).Find("y", 1).at(0).isWholeName);
    EXPECT_TRUE(BestCities(cities).Find(longName, 1).at(0).isWholeName);
}

TEST_F(BestCitiesTest, NothingIsFoundForNothing) {
    Add("Mecca", 1);
    EXPECT_THAT(Best("", 5), IsEmpty());
    EXPECT_THAT(Best("mecca", 0), IsEmpty());
    EXPECT_THAT(Best("medina", 5), IsEmpty());
}

}  // namespace
}  // namespace horavex
