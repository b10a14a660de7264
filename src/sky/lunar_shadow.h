#pragma once

#include "platform/almanac.h"

namespace horavex {

/// The moon beside the Earth's shadow as the centre of the Earth sees them, degrees.
struct MoonInShadow {
    double separation;  // of the moon's centre from the shadow's
    double penumbra;    // radii
    double umbra;
    double moon;

    // How far the moon is from touching the penumbra, from touching the umbra, and from lying
    // within it; below zero where it does.
    double PenumbralGap() const { return separation - penumbra - moon; }
    double UmbralGap() const { return separation - umbra - moon; }
    double TotalGap() const { return separation - umbra + moon; }

    // The part of the moon's diameter that lies in each; below zero where the moon misses it.
    double PenumbralMagnitude() const { return -PenumbralGap() / (2.0 * moon); }
    double UmbralMagnitude() const { return -UmbralGap() / (2.0 * moon); }
};

MoonInShadow MoonInShadowAt(const Almanac& almanac, Date universal);

/// Earth radii by which the moon's centre misses the axis of the shadow, northern ones positive.
double LunarGamma(const Almanac& almanac, Date universal);

}  // namespace horavex
