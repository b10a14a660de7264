#include <benchmark/benchmark.h>

#include "floors/moon_floor.h"
#include "moon/eclipses.h"
#include "moon/phase_rows.h"

namespace horavex::bench {
namespace {

void MoonTables(benchmark::State& state) {
    for (auto run : state) {
        benchmark::DoNotOptimize(ComputeNewMoonRows(2026, 3.0));
        benchmark::DoNotOptimize(ComputeFirstQuarterRows(2026, 3.0));
        benchmark::DoNotOptimize(ComputeFullMoonRows(2026, 3.0));
        benchmark::DoNotOptimize(ComputeLastQuarterRows(2026, 3.0));
    }
}
BENCHMARK(MoonTables);

void MoonTablesFloor(benchmark::State& state) {
    char room[kMoonRoom];
    for (auto run : state) {
        benchmark::DoNotOptimize(FloorMoonTables(2026, 3.0, room));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(MoonTablesFloor);

void EclipseLists(benchmark::State& state) {
    Eclipses eclipses;
    for (auto run : state) {
        benchmark::DoNotOptimize(ListSolarEclipses(eclipses, 2026, 3.0));
        benchmark::DoNotOptimize(ListLunarEclipses(eclipses, 2026, 3.0));
    }
}
BENCHMARK(EclipseLists);

void EclipseListsFloor(benchmark::State& state) {
    char room[kMoonRoom];
    double classified = 0.0;
    for (auto run : state) {
        benchmark::DoNotOptimize(FloorEclipseLists(2026, 3.0, room, classified));
        benchmark::ClobberMemory();
    }
    benchmark::DoNotOptimize(classified);
}
BENCHMARK(EclipseListsFloor);

}  // namespace
}  // namespace horavex::bench
