#include "sky/rise_set.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr double kStep = 10.0 / (24.0 * 60.0);  // days
constexpr double kRefraction = 34.0 / 60.0;     // degrees at the horizon

using OverHorizon = HorizonPlace (*)(const Almanac& almanac, const Observer& observer,
                                     Date universal);
using PlaceAt = CelestialPlace (Almanac::*)(Date universal) const;

std::optional<Date> First(const std::vector<Crossing>& crossings, bool rising) {
    for (const Crossing& crossing : crossings) {
        if (crossing.rising == rising) {
            return crossing.instant;
        }
    }
    return std::nullopt;
}

/// Degrees of the upper limb over the horizon as refraction shows it.
double UpperLimb(const HorizonPlace& place) {
    return place.altitude + place.semidiameter + kRefraction;
}

SkyQuantity UpperLimbOf(const Almanac& almanac, const Observer& observer, OverHorizon over) {
    return [&almanac, &observer, over](Date universal) {
        return UpperLimb(over(almanac, observer, universal));
    };
}

std::optional<Date> FirstSet(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                             OverHorizon over) {
    const SkyQuantity upperLimb = UpperLimbOf(almanac, observer, over);
    return FirstCrossing(upperLimb, span.from, span.end, kStep, false);
}

DayArc ArcOf(const Almanac& almanac, const Observer& observer, const SkySpan& span,
             OverHorizon over, PlaceAt placeAt) {
    const SkyQuantity upperLimb = UpperLimbOf(almanac, observer, over);
    const SkyQuantity pastMeridian = [&](Date universal) {
        return HourAngle(almanac, observer, (almanac.*placeAt)(universal), universal);
    };
    const auto limb = CrossingsOf(upperLimb, span.from, span.end, kStep);
    const auto meridian = CrossingsOf(pastMeridian, span.from, span.end, kStep);
    return {First(limb, true), First(meridian, true), First(limb, false),
            upperLimb(span.from) >= 0.0};
}

std::vector<SkySpan> UpIn(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                          OverHorizon over) {
    const SkyQuantity upperLimb = UpperLimbOf(almanac, observer, over);
    std::vector<SkySpan> up;
    bool isUp = upperLimb(span.from) >= 0.0;
    Date since = span.from;
    for (const Crossing& crossing : CrossingsOf(upperLimb, span.from, span.end, kStep)) {
        if (isUp) {
            up.push_back({since, crossing.instant});
        }
        isUp = crossing.rising;
        since = crossing.instant;
    }
    if (isUp) {
        up.push_back({since, span.end});
    }
    return up;
}

}  // namespace

std::optional<Date> FirstSunset(const Almanac& almanac, const Observer& observer,
                                const SkySpan& span) {
    return FirstSet(almanac, observer, span, SunOver);
}

std::optional<Date> FirstSunrise(const Almanac& almanac, const Observer& observer,
                                 const SkySpan& span) {
    return FirstCrossing(UpperLimbOf(almanac, observer, SunOver), span.from, span.end, kStep, true);
}

std::optional<Date> FirstMoonset(const Almanac& almanac, const Observer& observer,
                                 const SkySpan& span) {
    return FirstSet(almanac, observer, span, MoonOver);
}

std::optional<Date> LastMoonset(const Almanac& almanac, const Observer& observer,
                                const SkySpan& span) {
    std::vector<Crossing> crossings =
        CrossingsOf(UpperLimbOf(almanac, observer, MoonOver), span.from, span.end, kStep);
    std::ranges::reverse(crossings);
    return First(crossings, false);
}

bool IsMoonUp(const Almanac& almanac, const Observer& observer, Date universal) {
    return UpperLimb(MoonOver(almanac, observer, universal)) >= 0.0;
}

DayArc SunArc(const Almanac& almanac, const Observer& observer, const SkySpan& span) {
    return ArcOf(almanac, observer, span, SunOver, &Almanac::SunAt);
}

DayArc MoonArc(const Almanac& almanac, const Observer& observer, const SkySpan& span) {
    return ArcOf(almanac, observer, span, MoonOver, &Almanac::MoonAt);
}

std::vector<SkySpan> SunUp(const Almanac& almanac, const Observer& observer, const SkySpan& span) {
    return UpIn(almanac, observer, span, SunOver);
}

std::vector<SkySpan> MoonUp(const Almanac& almanac, const Observer& observer, const SkySpan& span) {
    return UpIn(almanac, observer, span, MoonOver);
}

Twilight TwilightOf(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                    double depth) {
    const SkyQuantity aboveDepth = [&](Date universal) {
        return SunOver(almanac, observer, universal).altitude + depth;
    };
    const auto crossings = CrossingsOf(aboveDepth, span.from, span.end, kStep);
    return {First(crossings, true), First(crossings, false)};
}

}  // namespace horavex
