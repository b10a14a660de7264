#pragma once

#include <cstdint>

namespace horavex {

/// Whole-degree limits of the depression angles for a band of latitudes.
struct AngleLimits {
    std::int16_t largest = 0;   // degrees
    std::int16_t middle = 0;    // degrees, the default for Fajr
    std::int16_t smallest = 0;  // degrees

    bool operator==(const AngleLimits&) const = default;
};

/// Until a band is read: the range of the controls' definition, and the angle of a first run.
inline constexpr AngleLimits kNoBand = {90, 18, 0};

/// The band of the present latitude. Written by LoadAngleBand.
extern AngleLimits AngleBand;

/// Walks "Dat/A.dat" for a latitude in hundredths of a degree, either sign. The band is the last
/// record whose limit lies below the latitude, not the one that covers it: a latitude of exactly
/// a limit belongs to the band before. Below the first limit the former band stays. Throws
/// FileFault for a missing file.
AngleLimits BandOf(std::int16_t latitude, AngleLimits former);

/// Makes the band of a latitude the present one. Throws as above.
void LoadAngleBand(std::int16_t latitude);

}  // namespace horavex
