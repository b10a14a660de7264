#include "sky/sky_day.h"

#include "sky/phases.h"

namespace horavex {

SkyDay SkyDayOf(const Almanac& almanac, const Observer& observer, const SkySpan& span) {
    SkyDay day{span, SunArc(almanac, observer, span), MoonArc(almanac, observer, span), {}};
    for (std::size_t i = 0; i < kTwilightDepths.size(); ++i) {
        day.twilights[i] = TwilightOf(almanac, observer, span, kTwilightDepths[i]);
    }
    return day;
}

SkyMoment SkyMomentAt(const Almanac& almanac, const Observer& observer, Date universal) {
    const CelestialPlace moon = almanac.MoonAt(universal);
    return {SunOver(almanac, observer, universal), MoonOver(almanac, observer, universal),
            moon.distance, LitPart(almanac.SunAt(universal), moon), MoonAhead(almanac, universal)};
}

double AgeOfMoon(const Almanac& almanac, Date universal) {
    constexpr double kLongestMonth = 30.0;  // days from new moon to new moon, and some
    double age = kLongestMonth;
    for (const PhaseInstant& phase : PhasesBetween(almanac, universal - kLongestMonth, universal)) {
        age = phase.phase == Phase::kNewMoon ? universal - phase.universal : age;
    }
    return age;
}

MoonShape MoonShapeAt(const Almanac& almanac, const SkySpan& day, Date universal) {
    constexpr double kQuarter = 90.0;  // degrees
    const auto phases = PhasesBetween(almanac, day.from, day.end);
    if (!phases.empty()) {
        return static_cast<MoonShape>(2 * static_cast<int>(phases.front().phase));
    }
    const int quarter = static_cast<int>(MoonAhead(almanac, universal) / kQuarter);
    return static_cast<MoonShape>(2 * quarter + 1);
}

}  // namespace horavex
