#include <benchmark/benchmark.h>

#include "built_places.h"
#include "engine/year_table.h"
#include "floors/export_floor.h"
#include "sample_year.h"

namespace horavex::bench {
namespace {

void TextOfAYear(benchmark::State& state) {
    const BuiltPlaces places;
    TakeMeccaIn2026();
    for (auto run : state) {
        benchmark::DoNotOptimize(TextPages());
    }
}
BENCHMARK(TextOfAYear);

void TextOfAYearFloor(benchmark::State& state) {
    const BuiltPlaces places;
    TakeMeccaIn2026();
    const PageHeads heads = HeadsOf(TextPages());
    std::string text;
    for (auto run : state) {
        FloorTextPages(2026, Times, heads, text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(TextOfAYearFloor);

}  // namespace
}  // namespace horavex::bench
