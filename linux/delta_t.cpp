#include "linux/delta_t.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace horavex {

namespace {

constexpr double kFirstYear = 1900.0;
constexpr double kYearsApart = 5.0;
constexpr double kDaysAYear = 365.25;

// Seconds at the beginning of 1900, 1905 and so on to 2025: The Astronomical Almanac, page K9, and
// from 1975 on the Bulletins of the International Earth Rotation Service.
constexpr double kMeasured[] = {-2.72, 3.86,  10.46, 17.20, 21.16, 23.62, 24.02, 23.93, 24.33,
                                26.77, 29.15, 31.07, 33.15, 35.73, 40.18, 45.48, 50.54, 54.34,
                                56.86, 60.79, 63.83, 64.69, 66.07, 67.64, 69.36, 69.14};
constexpr int kLastInterval = static_cast<int>(std::size(kMeasured)) - 2;
constexpr double kLastYear = kFirstYear + kYearsApart * (kLastInterval + 1);

// Seconds a year, the mean of 2000 to 2025, and half the mean slowing of the Earth since antiquity,
// seconds a year squared: 32.5 s a century squared (L. V. Morrison and others, Addendum 2020 to
// "Measurement of the Earth's rotation: 720 BC to AD 2015", Proceedings of the Royal Society A 477,
// 2021).
constexpr double kRate = (69.14 - 63.83) / 25.0;
constexpr double kSlowing = 32.5 / 1.0e4;

double Extrapolated(double years) {
    return kMeasured[kLastInterval + 1] + kRate * years + kSlowing * years * years;
}

/// Straight between two measured years; before the first the line of the first two goes on.
double Interpolated(double intervals) {
    const int at = std::clamp(static_cast<int>(std::floor(intervals)), 0, kLastInterval);
    return std::lerp(kMeasured[at], kMeasured[at + 1], intervals - at);
}

}  // namespace

double DeltaT(Date universal) {
    const double year = kFirstYear + (universal - DateSerial(1900, 1, 1)) / kDaysAYear;
    return year > kLastYear ? Extrapolated(year - kLastYear)
                            : Interpolated((year - kFirstYear) / kYearsApart);
}

}  // namespace horavex
