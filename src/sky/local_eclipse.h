#pragma once

#include "sky/eclipse.h"

namespace horavex {

/// The most of an eclipse that a place sees.
struct BestView {
    Date instant;      // the nearest to the greatest eclipse at which the body is up
    double magnitude;  // as that of Eclipse
};

/// An eclipse over a place, the ground being no hindrance but for what `seen` and `best` tell.
struct LocalEclipse {
    EclipseKind kind;  // the sun's is partial, annular or total; the moon's is that of the Earth
    Date greatest;
    double magnitude;    // as that of Eclipse
    double obscuration;  // the part of the sun's disc that is covered; 0 with the moon
    EclipsePhases phases;
    std::vector<SkySpan> seen;     // while the upper limb is over the horizon; none or one but in
                                   // the far north and south, where a body may dip
    std::optional<BestView> best;  // nothing where the place sees none of it

    bool IsSeenAt(Date instant) const;
};

/// Nothing where the moon passes the sun by. What goes on below the horizon is told, too, the sun's
/// along the line of the shadow through the Earth.
std::optional<LocalEclipse> LocalEclipseOf(const Almanac& almanac, const Observer& observer,
                                           const Eclipse& eclipse);

}  // namespace horavex
