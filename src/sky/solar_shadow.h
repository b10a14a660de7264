#pragma once

#include "sky/horizon.h"

namespace horavex {

/// The axis of the moon's shadow, which goes from the sun through the moon.
struct ShadowAxis {
    double gamma;      // Earth radii by which it misses the Earth's centre, northern ones positive
    double clearance;  // Earth radii by which it misses the Earth, below zero where it meets it
    Observer nearest;  // where it meets the Earth, or comes nearest to it
};

/// The Earth is flattened as its sphere stretched along the axis would be; the clearance, in that
/// sphere's measure, is a third of a percent off at most.
ShadowAxis ShadowAxisAt(const Almanac& almanac, Date universal);

}  // namespace horavex
