#include "moon/phase_rows.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "calendar/moon_labels.h"
#include "moon/lunation.h"
#include "moon/phase_terms.h"

namespace horavex {

namespace {

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

int NextMoonRow(MoonPhase phase, std::int16_t year, double day) {
    constexpr Phase kPhases[] = {kNewMoon, kFirstQuarter, kFullMoon, kLastQuarter};
    const Phase& wanted = kPhases[static_cast<std::size_t>(phase)];
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        if (InstantOf(wanted, LunationOf(year, static_cast<std::int16_t>(i), wanted.offset)) >=
            day) {
            return static_cast<int>(i);
        }
    }
    return -1;
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
