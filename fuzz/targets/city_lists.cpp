#include "base/fault.h"
#include "base/utf8.h"
#include "fuzz/damaged_folder.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "store/best_cities.h"
#include "store/city_index.h"
#include "store/city_list.h"
#include "store/city_search.h"
#include "store/nearest_city.h"

namespace horavex {

namespace {

bool AreTheSame(const CityHit& a, const CityHit& b) {
    return a.city == b.city && a.otherName == b.otherName && a.isWholeName == b.isWholeName;
}

/// The quick way finds what the plain one finds.
void Search(const CityList& cities, const std::string& text) {
    constexpr std::size_t kMost = 3;
    const std::vector<CityHit> all = SearchCities(cities, text);
    const std::vector<CityHit> best = BestCities(cities).Find(text, kMost);
    Require(best.size() == std::min(all.size(), kMost), "as many hits");
    for (std::size_t i = 0; i < best.size(); ++i) {
        Require(AreTheSame(best[i], all[i]), "the same hits");
        DisplayText(best[i]);
    }
}

}  // namespace

void FuzzCityLists(ByteView bytes) {
    FuzzInput input(bytes);
    const std::string text = input.TakeText();
    const double latitude = input.TakeInt16() / 100.0;
    const DamagedFolder folder(
        input, {"Dat/C.DAt", "Dat/CI.DAt", "Dat/S.DAT", "Dat/SI.DAt", "Dat/P.DAT", "Dat/PI.DAT",
                "Dat/RI.DAT", "Dat/N.DAT", "Dat/NI.DAT"});
    RunStep([&] { Search(ListCities(), text); });
    RunStep([&] { CitiesThatMayBe(text); });
    RunStep([&] { NearestCity(latitude, 31.25); });
}

}  // namespace horavex
