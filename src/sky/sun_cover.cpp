#include "sky/sun_cover.h"

#include <algorithm>
#include <cmath>

#include "engine/angle.h"
#include "sky/separation.h"

namespace horavex {

namespace {

// The moon's radius down to its valleys by the mean one: 0.272281 and 0.2725076 Earth radii, as
// F. Espenak and J. Meeus take them in the Five Millennium Canon of Solar Eclipses (2006).
constexpr double kValleys = 0.272281 / 0.2725076;

/// The area of a disc that lies beyond a chord, which is so far from the centre; negative where the
/// centre does.
double Segment(double radius, double chord) {
    const double half = std::acos(std::clamp(chord / radius, -1.0, 1.0));
    return radius * radius * (half - std::sin(half) * std::cos(half));
}

}  // namespace

double SunCover::Gap() const {
    return separation - sun - moon;
}

double SunCover::InnerGap() const {
    return separation - std::abs(moon * kValleys - sun);
}

bool SunCover::HidesSun() const {
    return moon * kValleys > sun;
}

double SunCover::Magnitude() const {
    return InnerGap() < 0.0 ? kValleys * moon / sun : -Gap() / (2.0 * sun);
}

double SunCover::Obscuration() const {
    if (Gap() >= 0.0) {
        return 0.0;
    }
    const double disc = Pi * sun * sun;
    if (separation <= std::abs(moon - sun)) {
        return std::min(moon * moon / (sun * sun), 1.0);
    }
    const double sunChord =
        (separation * separation + sun * sun - moon * moon) / (2.0 * separation);
    return (Segment(sun, sunChord) + Segment(moon, separation - sunChord)) / disc;
}

SunCover SunCoverAt(const Almanac& almanac, const Observer& observer, Date universal) {
    const HorizonPlace sun = SunOver(almanac, observer, universal);
    const HorizonPlace moon = MoonOver(almanac, observer, universal);
    return {Separation({sun.bearing, sun.altitude}, {moon.bearing, moon.altitude}),
            sun.semidiameter, moon.semidiameter};
}

}  // namespace horavex
