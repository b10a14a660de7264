// A year by the C library of the field that Debian packages, for scale.

#include <benchmark/benchmark.h>
#include <itl/prayer.h>

namespace {

constexpr int kUmmAlQura = 6;
constexpr int kDaysOf2026[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

void YearOfLibitl(benchmark::State& state) {
    Location place{39.83, 21.43, 3.0, 0, 0.0, 1010.0, 10.0};
    Method method;
    getMethod(kUmmAlQura, &method);
    for (auto run : state) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= kDaysOf2026[month - 1]; ++day) {
                Date date{day, month, 2026};
                Prayer prayers[6];
                getPrayerTimes(&place, &method, &date, prayers);
                benchmark::DoNotOptimize(prayers);
            }
        }
    }
}
BENCHMARK(YearOfLibitl);

}  // namespace
