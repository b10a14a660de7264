#include "moon/phase_rows.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "calendar/moon_labels.h"
#include "moon/lunation.h"
#include "moon/periodic_sum.h"

namespace horavex {

namespace {

// Multiples of M', M, F, O and the planetary argument; the power of E; the coefficients.

constexpr PeriodicTerm kNewAndFullMoon[] = {
    // column 0 new moon, column 1 full moon
    {1, 0, 0, 0, 0, 0, {-0.4072, -0.40614}},    {0, 1, 0, 0, 0, 1, {0.17241, 0.17302}},
    {2, 0, 0, 0, 0, 0, {0.01608, 0.01614}},     {0, 0, 2, 0, 0, 0, {0.01039, 0.01043}},
    {1, -1, 0, 0, 0, 1, {0.00739, 0.00734}},    {1, 1, 0, 0, 0, 1, {-0.00514, -0.00515}},
    {0, 2, 0, 0, 0, 2, {0.00208, 0.00209}},     {1, 0, -2, 0, 0, 0, {-0.00111, -0.00111}},
    {1, 0, 2, 0, 0, 0, {-0.00057, -0.00057}},   {2, 1, 0, 0, 0, 1, {0.00056, 0.00056}},
    {3, 0, 0, 0, 0, 0, {-0.00042, -0.00042}},   {0, 1, 2, 0, 0, 1, {0.00042, 0.00042}},
    {0, 1, -2, 0, 0, 1, {0.00038, 0.00038}},    {2, -1, 0, 0, 0, 1, {-0.00024, -0.00024}},
    {0, 0, 0, 1, 0, 0, {-0.00017, -0.00017}},   {1, 2, 0, 0, 0, 0, {-0.00007, -0.00007}},
    {2, 0, -2, 0, 0, 0, {0.00004, 0.00004}},    {0, 3, 0, 0, 0, 0, {0.00004, 0.00004}},
    {1, 1, -2, 0, 0, 0, {0.00003, 0.00003}},    {2, 0, 2, 0, 0, 0, {0.00003, 0.00003}},
    {1, 1, 2, 0, 0, 0, {-0.00003, -0.00003}},   {1, -1, 2, 0, 0, 0, {0.00003, 0.00003}},
    {1, -1, -2, 0, 0, 0, {-0.00002, -0.00002}}, {3, 1, 0, 0, 0, 0, {-0.00002, -0.00002}},
    {4, 0, 0, 0, 0, 0, {0.00002, 0.00002}},
};

constexpr PeriodicTerm kQuarters[] = {
    // column 0 both quarters
    {1, 0, 0, 0, 0, 0, {-0.62801}},   {0, 1, 0, 0, 0, 1, {0.17172}},
    {1, 1, 0, 0, 0, 1, {-0.01183}},   {2, 0, 0, 0, 0, 0, {0.00862}},
    {0, 0, 2, 0, 0, 0, {0.00804}},    {1, -1, 0, 0, 0, 1, {0.00454}},
    {0, 2, 0, 0, 0, 2, {0.00204}},    {1, 0, -2, 0, 0, 0, {-0.0018}},
    {1, 0, 2, 0, 0, 0, {-0.0007}},    {3, 0, 0, 0, 0, 0, {-0.0004}},
    {2, -1, 0, 0, 0, 1, {-0.00034}},  {0, 1, 2, 0, 0, 1, {0.00032}},
    {0, 1, -2, 0, 0, 1, {0.00032}},   {1, 2, 0, 0, 0, 2, {-0.00028}},
    {2, 1, 0, 0, 0, 1, {0.00027}},    {0, 0, 0, 1, 0, 0, {-0.00017}},
    {1, -1, -2, 0, 0, 0, {-0.00005}}, {2, 0, 2, 0, 0, 0, {0.00004}},
    {1, 1, 2, 0, 0, 0, {-0.00004}},   {1, -2, 0, 0, 0, 0, {0.00004}},
    {1, 1, -2, 0, 0, 0, {0.00003}},   {0, 3, 0, 0, 0, 0, {0.00003}},
    {2, 0, -2, 0, 0, 0, {0.00002}},   {1, -1, 2, 0, 0, 0, {0.00002}},
    {3, 1, 0, 0, 0, 0, {-0.00002}},
};

/// Days, for the planetary arguments 1 to 14.
constexpr double kPlanetaryCoefficients[kPlanetaryArguments] = {
    0.000325, 0.000165, 0.000164, 0.000126, 0.00011,  0.000062, 0.00006,
    0.000056, 0.000047, 0.000042, 0.00004,  0.000037, 0.000035, 0.000023};

struct Phase {
    double offset;  // of the lunation number
    std::span<const PeriodicTerm> terms;
    int column;
    double quarterSign;  // of the quarters' own correction; 0 for none
    int leadingBlanks;   // of the clock text
};

constexpr Phase kNewMoon = {0.0, kNewAndFullMoon, 0, 0.0, 0};
constexpr Phase kFirstQuarter = {0.25, kQuarters, 0, 1.0, 1};
constexpr Phase kFullMoon = {0.5, kNewAndFullMoon, 1, 0.0, 1};
constexpr Phase kLastQuarter = {0.75, kQuarters, 0, -1.0, 1};

double PlanetarySum(const Lunation& lunation) {
    double sum = 0.0;
    for (int n = 1; n <= kPlanetaryArguments; ++n) {
        sum +=
            kPlanetaryCoefficients[n - 1] * std::sin(PlanetaryArgument(n, lunation.k, lunation.T));
    }
    return sum;
}

double QuarterCorrection(const Lunation& at) {
    const double M = at.sunAnomaly;
    const double moon = at.moonAnomaly;
    return 0.00306 - 0.00038 * at.eccentricity * std::cos(M) + 0.00026 * std::cos(moon) -
           0.00002 * std::cos(moon - M) + 0.00002 * std::cos(moon + M) +
           0.00002 * std::cos(2.0 * at.latitude);
}

/// Julian day of a phase.
double InstantOf(const Phase& phase, const Lunation& at) {
    const SeriesAngles angles = {at.moonAnomaly, at.sunAnomaly, at.latitude, at.node};
    const double C = PeriodicSum(phase.terms, phase.column, angles, at.eccentricity);
    const double A = PlanetarySum(at);
    const double instant = at.day + C + A;
    return phase.quarterSign == 0.0 ? instant : instant + phase.quarterSign * QuarterCorrection(at);
}

MoonRows RowsOf(const Phase& phase, std::int16_t year, double zone) {
    MoonRows rows;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        double instant =
            InstantOf(phase, LunationOf(year, static_cast<std::int16_t>(i), phase.offset));
        const MoonDate date = MoonDateFromDay(instant, zone);
        WeekDayText(instant);  // named each time; no row shows it
        rows[i] = MoonDateText(date) + ", " + MoonClockText(date, zone, phase.leadingBlanks);
    }
    return rows;
}

}  // namespace

MoonRows ComputeNewMoonRows(std::int16_t year, double zone) {
    return RowsOf(kNewMoon, year, zone);
}

MoonRows ComputeFirstQuarterRows(std::int16_t year, double zone) {
    return RowsOf(kFirstQuarter, year, zone);
}

MoonRows ComputeFullMoonRows(std::int16_t year, double zone) {
    return RowsOf(kFullMoon, year, zone);
}

MoonRows ComputeLastQuarterRows(std::int16_t year, double zone) {
    return RowsOf(kLastQuarter, year, zone);
}

std::vector<std::string> MoonRowLabels(std::int16_t year, const MoonRows& newMoons) {
    const MoonMonthLabels table = BuildMoonMonthLabels(year);
    if (const auto slice = MoonLabelRows(year)) {
        const auto begin = table.begin();
        return {begin + static_cast<std::ptrdiff_t>(slice->first),
                begin + static_cast<std::ptrdiff_t>(slice->last) + 1};
    }
    std::vector<std::string> labels;
    std::transform(newMoons.begin(), newMoons.begin() + kMoonRows, std::back_inserter(labels),
                   HijriLabelForMoonRow);
    return labels;
}

}  // namespace horavex
