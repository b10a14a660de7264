#pragma once

#include <vector>

#include "sky/rise_set.h"

namespace horavex {

/// Instants at which the sun, while it is up, shows a direction.
struct DirectionBySun {
    std::vector<Date> sun;     // it stands there itself
    std::vector<Date> shadow;  // the shadow of an upright points there
};

/// bearing: degrees from north by east. Two of a kind within two minutes, as near the zenith, count
/// as none.
DirectionBySun ShownBySun(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                          double bearing);

/// The two noons of a year at which the sun stands over the Kaaba: everywhere on the day side it
/// then shows the qibla. The sun is within a quarter of a degree of the zenith there.
std::vector<Date> SunOverMecca(const Almanac& almanac, int year);

}  // namespace horavex
