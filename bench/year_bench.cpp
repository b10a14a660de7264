#include <benchmark/benchmark.h>

#include "floors/year_floor.h"
#include "sample_year.h"

namespace horavex::bench {
namespace {

void Year(benchmark::State& state) {
    const YearInputs inputs = MeccaIn2026();
    for (auto run : state) {
        benchmark::DoNotOptimize(CalculateYear(inputs));
    }
}
BENCHMARK(Year);

void YearFloor(benchmark::State& state) {
    const YearInputs inputs = MeccaIn2026();
    YearTimes times;
    for (auto run : state) {
        FloorYear(inputs, times);
        benchmark::DoNotOptimize(times);
    }
}
BENCHMARK(YearFloor);

}  // namespace
}  // namespace horavex::bench
