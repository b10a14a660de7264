#include "sky/qibla_by_sun.h"

#include <cmath>

#include "sky/crossing.h"

namespace horavex {

namespace {

constexpr double kStep = 2.0 / (24.0 * 60.0);  // days
constexpr double kHalfDay = 0.5;
constexpr Observer kKaaba{21.42249, 39.82621};

std::vector<Date> Passages(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                           double bearing) {
    const SkyQuantity beyond = [&](Date universal) {
        return SignedDegrees(SunOver(almanac, observer, universal).bearing - bearing);
    };
    std::vector<Date> instants;
    for (const Crossing& crossing : CrossingsOf(beyond, span.from, span.end, kStep)) {
        if (SunOver(almanac, observer, crossing.instant).altitude > 0.0) {
            instants.push_back(crossing.instant);
        }
    }
    return instants;
}

}  // namespace

DirectionBySun ShownBySun(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                          double bearing) {
    return {Passages(almanac, observer, span, bearing),
            Passages(almanac, observer, span, bearing + 180.0)};
}

std::vector<Date> SunOverMecca(const Almanac& almanac, int year) {
    const SkyQuantity northward = [&](Date universal) {
        return almanac.SunAt(universal).declination - kKaaba.latitude;
    };
    std::vector<Date> noons;
    for (const Crossing& crossing :
         CrossingsOf(northward, DateSerial(year, 1, 1), DateSerial(year + 1, 1, 1), 1.0)) {
        const SkySpan day = {crossing.instant - kHalfDay, crossing.instant + kHalfDay};
        if (const auto noon = SunArc(almanac, kKaaba, day).transit) {
            noons.push_back(*noon);
        }
    }
    return noons;
}

}  // namespace horavex
