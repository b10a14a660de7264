#pragma once

#include <cmath>

namespace horavex {

/// Forms measure in twips, 15 to a pixel of 96 an inch. Pixels here are the toolkit's own, which a
/// dense screen shows by several of its dots.
inline constexpr double kTwipsPerPixel = 15.0;

inline int PixelsOf(double twips) {
    return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

inline double TwipsOf(int pixels) {
    return pixels * kTwipsPerPixel;
}

}  // namespace horavex
