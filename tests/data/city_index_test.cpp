#include "store/city_index.h"

#include "base/fold.h"
#include "base/text.h"
#include "data/built_data.h"
#include "store/city_search.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::Not;

struct BuiltCityIndex : BuiltData {
    /// The hits whose whole name it is, and whatever goes before others, in their order.
    static std::vector<std::string> WholeNames(Cities among, const std::string& name) {
        const std::string folded = FoldForSearch(name);
        std::vector<std::string> found;
        for (const CityHit& hit : SearchCities(among, name)) {
            const std::string own(hit.otherName.empty() ? hit.city->name : hit.otherName);
            if (hit.isWholeName || FoldForSearch(own) == folded) {
                found.push_back(std::to_string(hit.city->cityIndex) + " " + DisplayText(hit));
            }
        }
        return found;
    }

    void ExpectTheSame(const std::string& name) const {
        const auto few = CitiesThatMayBe(name);
        ASSERT_TRUE(few) << name;
        EXPECT_EQ(WholeNames(*few, name), WholeNames(cities, name)) << name;
    }

    const CityList cities = ListCities();
};

TEST_F(BuiltCityIndex, FindsEveryCityByEachOfItsNames) {
    constexpr std::size_t kStep = 307;
    for (std::size_t place = 0; place < cities.size(); place += kStep) {
        std::vector<std::string> names = {std::string(cities[place].name)};
        const std::vector<std::string> others = Split(cities[place].otherNames, ',');
        names.insert(names.end(), others.begin(), others.end());
        for (const std::string& name : names) {
            const CityList few = CitiesThatMayBe(name).value();
            const bool has = std::ranges::any_of(few, [&](const ListedCity& city) {
                return city.cityIndex == cities[place].cityIndex;
            });
            EXPECT_TRUE(has || name.empty()) << name;
        }
    }
}

TEST_F(BuiltCityIndex, TellsAsMuchOfWholeNamesAsTheListOfAll) {
    constexpr std::size_t kStep = 977;
    for (std::size_t place = 0; place < cities.size(); place += kStep) {
        ExpectTheSame(std::string(cities[place].name));
        for (const std::string& name : Split(cities[place].otherNames, ',')) {
            ExpectTheSame(name);
        }
    }
}

TEST_F(BuiltCityIndex, TellsAsMuchOfNamesThatManyHave) {
    for (const char* name : {"Springfield", "San José", "Santa Rosa", "Mecca", "Apia", "Córdoba",
                             "Victoria", "La Paz", "St. John's", "القاهرة", "New York", "Y"}) {
        ExpectTheSame(name);
    }
    EXPECT_THAT(CitiesThatMayBe("Springfield").value(), Not(IsEmpty()));
}

}  // namespace
}  // namespace horavex
