#include "sky/local_eclipse.h"

#include <algorithm>
#include <cmath>

#include "sky/low_point.h"
#include "sky/lunar_shadow.h"
#include "sky/rise_set.h"
#include "sky/sun_cover.h"

namespace horavex {

namespace {

/// Who watches an eclipse of the sun.
struct SunWatch {
    const Almanac& almanac;
    const Observer& observer;

    SunCover At(Date universal) const { return SunCoverAt(almanac, observer, universal); }

    SkyQuantity Of(double (SunCover::*gap)() const) const {
        return [this, gap](Date universal) { return (At(universal).*gap)(); };
    }

    EclipsePhases PhasesAround(Date greatest) const {
        const SkySpan whole = BelowZeroAround(Of(&SunCover::Gap), greatest, kEclipseReach);
        if (At(greatest).InnerGap() >= 0.0) {
            return {whole, {}, {}};
        }
        return {whole, {}, BelowZeroAround(Of(&SunCover::InnerGap), greatest, kEclipseReach)};
    }

    /// But for what the horizon leaves of it.
    LocalEclipse LocalAt(Date greatest) const {
        const SunCover cover = At(greatest);
        return {KindOf(cover),
                greatest,
                cover.Magnitude(),
                cover.Obscuration(),
                PhasesAround(greatest),
                {},
                {}};
    }
};

Date NearestIn(const SkySpan& span, Date instant) {
    return std::clamp(instant, span.from, span.end);
}

/// The instant of the spans that is nearest to another one; the spans are not none.
Date NearestIn(const std::vector<SkySpan>& spans, Date instant) {
    Date nearest = NearestIn(spans.front(), instant);
    for (const SkySpan& span : spans) {
        const Date inside = NearestIn(span, instant);
        nearest = std::abs(inside - instant) < std::abs(nearest - instant) ? inside : nearest;
    }
    return nearest;
}

std::optional<LocalEclipse> OfSun(const Almanac& almanac, const Observer& observer,
                                  const Eclipse& eclipse) {
    const SunWatch watch{almanac, observer};
    const Date greatest = LeastOf(watch.Of(&SunCover::Gap), {eclipse.greatest - kEclipseReach,
                                                             eclipse.greatest + kEclipseReach});
    if (watch.At(greatest).Gap() >= 0.0) {
        return std::nullopt;
    }
    LocalEclipse local = watch.LocalAt(greatest);
    local.seen = SunUp(almanac, observer, local.phases.whole);
    if (!local.seen.empty()) {
        const Date best = NearestIn(local.seen, greatest);
        local.best = {best, watch.At(best).Magnitude()};
    }
    return local;
}

LocalEclipse OfMoon(const Almanac& almanac, const Observer& observer, const Eclipse& eclipse) {
    LocalEclipse local{
        eclipse.kind, eclipse.greatest, eclipse.magnitude, 0.0, *eclipse.phases, {}, {}};
    local.seen = MoonUp(almanac, observer, local.phases.whole);
    if (!local.seen.empty()) {
        const Date best = NearestIn(local.seen, eclipse.greatest);
        local.best = {best, MoonInShadowAt(almanac, best).UmbralMagnitude()};
    }
    return local;
}

}  // namespace

bool LocalEclipse::IsSeenAt(Date instant) const {
    return std::any_of(seen.begin(), seen.end(), [=](const SkySpan& span) {
        return span.from <= instant && instant <= span.end;
    });
}

std::optional<LocalEclipse> LocalEclipseOf(const Almanac& almanac, const Observer& observer,
                                           const Eclipse& eclipse) {
    return eclipse.solar ? OfSun(almanac, observer, eclipse) : OfMoon(almanac, observer, eclipse);
}

}  // namespace horavex
