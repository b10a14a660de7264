#pragma once

#include <optional>
#include <vector>

#include "sky/crossing.h"
#include "sky/horizon.h"

namespace horavex {

/// Eclipses of the sun are partial, annular, total or hybrid, which is total around the middle of
/// its path and annular at an end of it; those of the moon penumbral, partial or total.
enum class EclipseKind { kPenumbral, kPartial, kAnnular, kHybrid, kTotal };

/// Days from the greatest eclipse, beyond its begin and end anywhere.
inline constexpr double kEclipseReach = 0.2;

/// How long an eclipse is to be seen. The moon's begins and ends with the penumbra.
struct EclipsePhases {
    SkySpan whole;
    std::optional<SkySpan> umbral;  // the moon's: some of it is in the umbra
    std::optional<SkySpan> full;    // total or annular
};

/// An eclipse as the Earth has it. Instants are by the clock of Greenwich.
struct Eclipse {
    bool solar;  // else of the moon
    EclipseKind kind;
    Date greatest;     // when the axis of the shadow is nearest to the centre of what it falls on
    double gamma;      // Earth radii between the two, northern ones positive
    double magnitude;  // the sun's: as SunCover tells it; the moon's: of the umbra, below zero
                       // where the moon misses it

    Observer place{};                       // the sun's: where it is greatest
    double penumbralMagnitude = 0.0;        // the moon's
    std::optional<EclipsePhases> phases{};  // the moon's, the same for all who see it
};

struct SunCover;

/// What the moon makes of the sun where the two touch: partial, annular or total.
EclipseKind KindOf(const SunCover& cover);

/// The eclipses that are greatest from one instant up to, not including, another, in their order.
std::vector<Eclipse> EclipsesBetween(const Almanac& almanac, Date from, Date end);

}  // namespace horavex
