#pragma once

#include "sky/horizon.h"

namespace horavex {

/// The moon before the sun as an observer sees them, degrees. The air is left out.
struct SunCover {
    double separation;  // between the centres
    double sun;         // semidiameters
    double moon;

    /// How far the moon is from touching the sun, degrees; below zero where it covers some of it.
    double Gap() const;

    /// How far the one disc is from lying within the other; below zero where it does. The moon is
    /// taken without its mountains, since light comes through the valleys between them.
    double InnerGap() const;

    /// With the one disc within the other: whether the moon hides all of the sun, or leaves a ring.
    bool HidesSun() const;

    /// The part of the sun's diameter that is covered; the moon's diameter by the sun's where the
    /// one lies within the other.
    double Magnitude() const;

    /// The part of the sun's disc that is covered, 0 to 1.
    double Obscuration() const;
};

SunCover SunCoverAt(const Almanac& almanac, const Observer& observer, Date universal);

}  // namespace horavex
