#include "store/best_cities.h"

#include <map>
#include <random>

#include "data/built_data.h"

namespace horavex {
namespace {

constexpr std::size_t kMost = 200;

struct BuiltBestCities : BuiltData {
    static std::vector<std::string> Texts(const std::vector<CityHit>& hits) {
        std::vector<std::string> texts;
        for (std::size_t hit = 0; hit < std::min(hits.size(), kMost); ++hit) {
            texts.push_back(std::to_string(hits[hit].city->cityIndex) + " " +
                            DisplayText(hits[hit]) + (hits[hit].isWholeName ? " whole" : ""));
        }
        return texts;
    }

    void ExpectTheSame(const std::string& text) const {
        EXPECT_EQ(Texts(best.Find(text, kMost)), Texts(SearchCities(cities, text)))
            << "\"" << text << "\"";
    }

    const CityList cities = ListCities();
    const BestCities best{cities};
};

TEST_F(BuiltBestCities, AreTheFirstOfAllThatMatchASingleLetter) {
    for (const char* letters : {"a", "s", "q", "x", "0", "-", ",", "'", "(", " z "}) {
        ExpectTheSame(letters);
    }
}

TEST_F(BuiltBestCities, AreTheFirstOfAllThatMatch) {
    for (const char* text : {"an",
                             "un",
                             "xq",
                             "nan",
                             "san",
                             "san ",
                             "la",
                             "cairo",
                             "القاهرة",
                             "ال",
                             "Москва",
                             "мо",
                             "東京",
                             "St. John's",
                             "united states",
                             "ited st",
                             "paris, texas",
                             "new york - united",
                             "- egypt",
                             "Y",
                             "al ",
                             "saint-",
                             "são",
                             "mekk",
                             "o'",
                             "l'",
                             "",
                             "  ",
                             "nowhere at all"}) {
        ExpectTheSame(text);
    }
}

TEST_F(BuiltBestCities, AreTheFirstOfAllThatMatchPartsOfNames) {
    std::mt19937 random(17);  // NOLINT: the same cities in each run
    for (int n = 0; n < 120; ++n) {
        const ListedCity& city = cities[random() % cities.size()];
        const std::string names(n % 3 == 0 ? city.otherNames : city.folded);
        if (!names.empty()) {
            const std::size_t at = n % 2 == 0 ? 0 : random() % names.size();
            ExpectTheSame(names.substr(at, 1 + random() % 8));
        }
    }
}

}  // namespace
}  // namespace horavex
