#include "store/best_cities.h"

#include "base/fold.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct BestCitiesTest : testing::Test {
    void Add(std::string_view name, std::uint16_t rank, std::string_view otherNames = "") {
        TextStore& texts = cities.Texts();
        cities.Add({0, texts.Keep(name), "", "Nowhere", 0, 0, rank,
                    texts.Keep(FoldForSearch(name), " - nowhere"), texts.Keep(otherNames)});
    }

    std::vector<std::string> Best(const std::string& text, std::size_t most) const {
        std::vector<std::string> names;
        for (const CityHit& hit : BestCities(cities).Find(text, most)) {
            names.emplace_back(hit.city->name);
        }
        return names;
    }

    CityList cities;
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

TEST_F(BestCitiesTest, PartsAreFoundWhereverTheyStand) {
    Add("Iraq", 1);
    Add("Quito", 2);
    Add("Al 'Arabiyah", 3);
    EXPECT_THAT(Best("q", 5), ElementsAre("Quito", "Iraq"));
    EXPECT_THAT(Best("e", 5), ElementsAre("Iraq", "Quito", "Al 'Arabiyah")) << "of the country";
    EXPECT_THAT(Best("yah - no", 5), ElementsAre("Al 'Arabiyah"));
    EXPECT_THAT(Best("arab", 5), ElementsAre("Al 'Arabiyah"));
}

TEST_F(BestCitiesTest, OtherNamesCountFromTheirFirstLettersOn) {
    Add("Mecca", 1, "'Umm al-Qura,e\u0301,東京");
    EXPECT_THAT(Best("um", 5), ElementsAre("Mecca"));
    EXPECT_THAT(Best("umm", 5), ElementsAre("Mecca"));
    EXPECT_THAT(Best("umm al qura", 5), ElementsAre("Mecca"));
    EXPECT_THAT(Best("東", 5), ElementsAre("Mecca"));
    EXPECT_THAT(Best("al qura", 5), IsEmpty());
}

TEST_F(BestCitiesTest, ThousandsOfCitiesAreFoundByRank) {
    for (int n = 0; n < 1500; ++n) {
        Add("City " + std::to_string(n), static_cast<std::uint16_t>(1500 - n));
    }
    EXPECT_THAT(Best("city", 3), ElementsAre("City 1499", "City 1498", "City 1497"));
    EXPECT_THAT(Best("city 7", 2), ElementsAre("City 7", "City 799"));
    EXPECT_THAT(Best("1234", 2), ElementsAre("City 1234"));
}

TEST_F(BestCitiesTest, NothingIsFoundForNothing) {
    Add("Mecca", 1);
    EXPECT_THAT(Best("", 5), IsEmpty());
    EXPECT_THAT(Best("mecca", 0), IsEmpty());
    EXPECT_THAT(Best("medina", 5), IsEmpty());
}

}  // namespace
}  // namespace horavex
