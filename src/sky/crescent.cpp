#include "sky/crescent.h"

#include <algorithm>
#include <cmath>

#include "engine/angle.h"
#include "sky/rise_set.h"
#include "sky/separation.h"

namespace horavex {

namespace {

constexpr double kHours = 24.0;          // a day
constexpr double kMinutesOfArc = 60.0;   // a degree
constexpr double kBestPart = 4.0 / 9.0;  // of the lag

CrescentArcs ArcsOf(const HorizonPlace& sun, const HorizonPlace& moon, double semidiameter) {
    const double light = Separation({sun.bearing, sun.altitude}, {moon.bearing, moon.altitude});
    return {light, moon.altitude - sun.altitude, SignedDegrees(moon.bearing - sun.bearing),
            semidiameter * kMinutesOfArc * (1.0 - std::cos(DegToRad(light)))};
}

/// The moonset that ends the evening, or the last one before the sunset.
std::optional<Date> MoonsetAround(const Almanac& almanac, const Observer& observer, Date sunset) {
    const Date from = IsMoonUp(almanac, observer, sunset) ? sunset : sunset - 1.0;
    return FirstMoonset(almanac, observer, {from, from + 1.0});
}

Date BestTime(Date sunset, const std::optional<Date>& moonset) {
    return sunset + kBestPart * std::max(moonset.value_or(sunset) - sunset, 0.0);
}

}  // namespace

std::optional<double> CrescentEvening::Lag() const {
    return moonset ? std::optional(*moonset - sunset) : std::nullopt;
}

std::optional<CrescentEvening> CrescentAfter(const Almanac& almanac, const Observer& observer,
                                             Date noon, Date newMoon) {
    const auto sunset = FirstSunset(almanac, observer, {noon, noon + 1.0});
    return sunset ? std::optional(CrescentAt(almanac, observer, *sunset, newMoon)) : std::nullopt;
}

CrescentEvening CrescentAt(const Almanac& almanac, const Observer& observer, Date sunset,
                           Date newMoon) {
    const std::optional<Date> moonset = MoonsetAround(almanac, observer, sunset);
    const Date best = BestTime(sunset, moonset);
    const HorizonPlace moon = MoonOver(almanac, observer, best);
    const CrescentArcs seen = ArcsOf(SunOver(almanac, observer, best), moon, moon.semidiameter);
    const CrescentArcs central = ArcsOf(SunFromCentre(almanac, observer, best),
                                        MoonFromCentre(almanac, observer, best), moon.semidiameter);
    return {sunset,
            moonset,
            best,
            (best - newMoon) * kHours,
            moon.altitude,
            central,
            seen,
            YallopVerdict(central.vision, central.width),
            OdehVerdict(seen.vision, seen.width)};
}

EveningKind KindOf(const std::optional<CrescentEvening>& evening, Date newMoon) {
    if (!evening) {
        return EveningKind::kSunStaysUp;
    }
    if (evening->sunset < newMoon) {
        return EveningKind::kBeforeNewMoon;
    }
    return evening->Lag().value_or(0.0) > 0.0 ? EveningKind::kJudged : EveningKind::kMoonSetsFirst;
}

}  // namespace horavex
