#include <benchmark/benchmark.h>

#include "built_places.h"
#include "floors/search_floor.h"
#include "store/best_cities.h"

namespace horavex::bench {
namespace {

constexpr std::size_t kShown = 200;

void ListOfAllCities(benchmark::State& state) {
    const BuiltPlaces places;
    for (auto run : state) {
        benchmark::DoNotOptimize(ListCities());
    }
}
BENCHMARK(ListOfAllCities);

void ReadyForSearches(benchmark::State& state) {
    const BuiltPlaces places;
    const auto cities = ListCities();
    for (auto run : state) {
        benchmark::DoNotOptimize(BestCities(cities));
    }
}
BENCHMARK(ReadyForSearches);

void SearchKey(benchmark::State& state, const char* text) {
    const BuiltPlaces places;
    const auto cities = ListCities();
    const BestCities ready(cities);
    for (auto run : state) {
        benchmark::DoNotOptimize(ready.Find(text, kShown));
    }
}

void SearchKeyFloor(benchmark::State& state, const char* text) {
    const BuiltPlaces places;
    FoldedNames names;
    for (const ListedCity& city : ListCities()) {
        names.Add(city.folded);
    }
    for (auto run : state) {
        benchmark::DoNotOptimize(names.Count(text));
    }
}

void BothOf(const char* text) {
    benchmark::RegisterBenchmark((std::string("SearchKey/") + text).c_str(), SearchKey, text);
    benchmark::RegisterBenchmark((std::string("SearchKeyFloor/") + text).c_str(), SearchKeyFloor,
                                 text);
}

// A letter that begins most names and one that few hold, pairs and more, a whole name, two words, a
// text within words, and one that is nowhere.
const bool registered = [] {
    for (const char* text : {"a", "s", "q", "an", "un", "nan", "san ", "cairo", "united states",
                             "ited states", "xq"}) {
        BothOf(text);
    }
    return true;
}();

}  // namespace
}  // namespace horavex::bench
