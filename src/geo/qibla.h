#pragma once

#include <string>

namespace horavex {

/// Direction of Mecca from the place of the last calculation. Written by ComputeQibla.
extern double QiblaRad;        // radians from north, positive to the east, [-Pi, Pi]
extern double QiblaDegrees;    // the same in degrees
extern std::string QiblaText;  // the sentence, in the language of the accepted settings

/// Works the three values out for the engine's place. A QiblaMethod other than 1 and 2 keeps the
/// bearing and words it anew.
void ComputeQibla();

}  // namespace horavex
