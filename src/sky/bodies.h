#pragma once

namespace horavex {

// The Earth as the World Geodetic System 1984 has it.
inline constexpr double kEarthRadius = 6378.137;  // kilometres, at the equator
inline constexpr double kFlattening = 1.0 / 298.257223563;

// Kilometres. The sun of 959.63 seconds of arc at the mean distance, the moon of 0.2725076 Earth
// radii: those of the almanacs.
inline constexpr double kSunRadius = 695990.0;
inline constexpr double kMoonRadius = 0.2725076 * kEarthRadius;

}  // namespace horavex
