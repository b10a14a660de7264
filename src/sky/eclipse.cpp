#include "sky/eclipse.h"

#include <cmath>

#include "sky/low_point.h"
#include "sky/lunar_shadow.h"
#include "sky/phases.h"
#include "sky/solar_shadow.h"
#include "sky/sun_cover.h"

namespace horavex {

namespace {

constexpr double kMostLatitude = 2;  // degrees of the moon, at a phase beyond which is no eclipse

/// The axis of the shadow around its greatest eclipse.
struct Path {
    const Almanac& almanac;
    Date greatest;

    EclipseKind KindAt(Date universal) const {
        const Observer nearest = ShadowAxisAt(almanac, universal).nearest;
        return KindOf(SunCoverAt(almanac, nearest, universal));
    }

    /// Where the axis sets on and off, the moon is farther away by the Earth's radius.
    bool BeginsOrEndsAnnular() const {
        const SkyQuantity clearance = [&](Date universal) {
            return ShadowAxisAt(almanac, universal).clearance;
        };
        const SkySpan path = BelowZeroAround(clearance, greatest, kEclipseReach);
        return KindAt(path.from) == EclipseKind::kAnnular ||
               KindAt(path.end) == EclipseKind::kAnnular;
    }

    EclipseKind Kind(const ShadowAxis& axis) const {
        const EclipseKind kind = KindAt(greatest);
        const bool hybrid =
            kind == EclipseKind::kTotal && axis.clearance < 0.0 && BeginsOrEndsAnnular();
        return hybrid ? EclipseKind::kHybrid : kind;
    }
};

SkySpan Around(Date phase) {
    return {phase - kEclipseReach, phase + kEclipseReach};
}

std::optional<Eclipse> SolarEclipseAt(const Almanac& almanac, Date newMoon) {
    const SkyQuantity miss = [&](Date universal) {
        return std::abs(ShadowAxisAt(almanac, universal).gamma);
    };
    const Date greatest = LeastOf(miss, Around(newMoon));
    const ShadowAxis axis = ShadowAxisAt(almanac, greatest);
    const SunCover cover = SunCoverAt(almanac, axis.nearest, greatest);
    if (cover.Gap() >= 0.0) {
        return std::nullopt;
    }
    const EclipseKind kind = Path{almanac, greatest}.Kind(axis);
    return Eclipse{true, kind, greatest, axis.gamma, cover.Magnitude(), axis.nearest};
}

EclipseKind KindOf(const MoonInShadow& shadow) {
    if (shadow.UmbralGap() >= 0.0) {
        return EclipseKind::kPenumbral;
    }
    return shadow.TotalGap() >= 0.0 ? EclipseKind::kPartial : EclipseKind::kTotal;
}

EclipsePhases LunarPhases(const Almanac& almanac, Date greatest) {
    const auto span = [&](double (MoonInShadow::*gap)() const) {
        const SkyQuantity quantity = [&](Date universal) {
            return (MoonInShadowAt(almanac, universal).*gap)();
        };
        return quantity(greatest) < 0.0
                   ? std::optional(BelowZeroAround(quantity, greatest, kEclipseReach))
                   : std::nullopt;
    };
    return {*span(&MoonInShadow::PenumbralGap), span(&MoonInShadow::UmbralGap),
            span(&MoonInShadow::TotalGap)};
}

std::optional<Eclipse> LunarEclipseAt(const Almanac& almanac, Date fullMoon) {
    const SkyQuantity miss = [&](Date universal) {
        return std::abs(LunarGamma(almanac, universal));
    };
    const Date greatest = LeastOf(miss, Around(fullMoon));
    const MoonInShadow shadow = MoonInShadowAt(almanac, greatest);
    if (shadow.PenumbralGap() >= 0.0) {
        return std::nullopt;
    }
    return Eclipse{false,
                   KindOf(shadow),
                   greatest,
                   LunarGamma(almanac, greatest),
                   shadow.UmbralMagnitude(),
                   {},
                   shadow.PenumbralMagnitude(),
                   LunarPhases(almanac, greatest)};
}

std::optional<Eclipse> EclipseAt(const Almanac& almanac, const PhaseInstant& found) {
    if (std::abs(almanac.MoonAt(found.universal).latitude) > kMostLatitude) {
        return std::nullopt;
    }
    switch (found.phase) {
        case Phase::kNewMoon:
            return SolarEclipseAt(almanac, found.universal);
        case Phase::kFullMoon:
            return LunarEclipseAt(almanac, found.universal);
        default:
            return std::nullopt;
    }
}

}  // namespace

EclipseKind KindOf(const SunCover& cover) {
    if (cover.InnerGap() >= 0.0) {
        return EclipseKind::kPartial;
    }
    return cover.HidesSun() ? EclipseKind::kTotal : EclipseKind::kAnnular;
}

std::vector<Eclipse> EclipsesBetween(const Almanac& almanac, Date from, Date end) {
    std::vector<Eclipse> eclipses;
    for (const PhaseInstant& found :
         PhasesBetween(almanac, from - kEclipseReach, end + kEclipseReach)) {
        const auto eclipse = EclipseAt(almanac, found);
        if (eclipse && from <= eclipse->greatest && eclipse->greatest < end) {
            eclipses.push_back(*eclipse);
        }
    }
    return eclipses;
}

}  // namespace horavex
