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
std::optional<Date> MoonsetAround(const Almanac& almanac, const Observer& observer, Date sunset,
                                  bool moonUp) {
    return moonUp ? FirstMoonset(almanac, observer, {sunset, sunset + 1.0})
                  : LastMoonset(almanac, observer, {sunset - 1.0, sunset});
}

/// When there is nothing more to look for: with the moonset, or with the sunrise where the night is
/// over before. A moon that stays up over a night without an end has no such time.
std::optional<Date> EndOfLook(const Almanac& almanac, const Observer& observer, Date sunset,
                              const std::optional<Date>& moonset) {
    const auto sunrise = FirstSunrise(almanac, observer, {sunset, moonset.value_or(sunset + 1.0)});
    return sunrise ? sunrise : moonset;
}

Date BestTime(Date sunset, const std::optional<Date>& end) {
    return sunset + kBestPart * std::max(end.value_or(sunset) - sunset, 0.0);
}

/// Fills in how the moon stands at the best time, and the verdicts.
void Judge(CrescentEvening& evening, const Almanac& almanac, const Observer& observer) {
    const Date best = evening.best;
    const HorizonPlace moon = MoonOver(almanac, observer, best);
    evening.moonAltitude = moon.altitude;
    evening.topocentric = ArcsOf(SunOver(almanac, observer, best), moon, moon.semidiameter);
    evening.geocentric = ArcsOf(SunFromCentre(almanac, observer, best),
                                MoonFromCentre(almanac, observer, best), moon.semidiameter);
    evening.yallop = YallopVerdict(evening.geocentric.vision, evening.geocentric.width);
    evening.odeh = OdehVerdict(evening.topocentric.vision, evening.topocentric.width);
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
    CrescentEvening evening{};
    evening.sunset = sunset;
    evening.moonUp = IsMoonUp(almanac, observer, sunset);
    evening.moonset = MoonsetAround(almanac, observer, sunset, evening.moonUp);
    evening.best = BestTime(sunset, EndOfLook(almanac, observer, sunset, evening.moonset));
    evening.age = (evening.best - newMoon) * kHours;
    Judge(evening, almanac, observer);
    return evening;
}

EveningKind KindOf(Date sunset, bool moonUp, Date newMoon) {
    if (sunset < newMoon) {
        return EveningKind::kBeforeNewMoon;
    }
    return moonUp ? EveningKind::kJudged : EveningKind::kMoonSetsFirst;
}

EveningKind KindOf(const std::optional<CrescentEvening>& evening, Date newMoon) {
    return evening ? KindOf(evening->sunset, evening->moonUp, newMoon) : EveningKind::kNoSunset;
}

}  // namespace horavex
