#pragma once

#include "sky/eclipse.h"

namespace horavex {

// The lists of moon/eclipses beside the sky: they name what lies near a node, of which not all is
// an eclipse, and they miss some.

/// A row of the list of a year.
struct ToldCandidate {
    bool solar;    // else of the moon
    Date instant;  // that the list tells, in zone 0
    bool happens;  // there is such an eclipse within a day
};

/// The candidates of both lists, the sun's first, each in the order of its list.
std::vector<ToldCandidate> ToldCandidates(const Almanac& almanac, int year);

/// Whether the lists of the eclipse's year name it.
bool IsTold(const Eclipse& eclipse, const std::vector<ToldCandidate>& candidates);

}  // namespace horavex
