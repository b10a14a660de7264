#include "sky/told_eclipses.h"

#include <algorithm>
#include <cmath>

#include "base/int16.h"
#include "base/julian_day.h"
#include "moon/eclipses.h"

namespace horavex {

namespace {

constexpr double kNear = 1.0;  // days

bool IsSame(const Eclipse& eclipse, const ToldCandidate& candidate) {
    return eclipse.solar == candidate.solar &&
           std::abs(eclipse.greatest - candidate.instant) < kNear;
}

void AddCandidates(const Almanac& almanac, bool solar, const std::vector<double>& julianDays,
                   std::vector<ToldCandidate>& candidates) {
    for (const double day : julianDays) {
        ToldCandidate candidate{solar, day - kJulianEpoch, false};
        const auto near =
            EclipsesBetween(almanac, candidate.instant - kNear, candidate.instant + kNear);
        candidate.happens = std::any_of(near.begin(), near.end(), [&](const Eclipse& eclipse) {
            return IsSame(eclipse, candidate);
        });
        candidates.push_back(candidate);
    }
}

}  // namespace

std::vector<ToldCandidate> ToldCandidates(const Almanac& almanac, int year) {
    std::vector<ToldCandidate> candidates;
    AddCandidates(almanac, true, ListedSolarDays(ToInt16(year)), candidates);
    AddCandidates(almanac, false, ListedLunarDays(ToInt16(year)), candidates);
    return candidates;
}

bool IsTold(const Eclipse& eclipse, const std::vector<ToldCandidate>& candidates) {
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](const ToldCandidate& candidate) { return IsSame(eclipse, candidate); });
}

}  // namespace horavex
