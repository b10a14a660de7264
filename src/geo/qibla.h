#pragma once

#include <string>

namespace horavex {

// The qibla as the initial bearing of the great circle to Mecca on a sphere:
// tan q = sin D / (tan m cos p - cos D sin p), with D the difference of longitudes, m Mecca's
// latitude and p the place's. Mecca is a pair of fixed numbers, 21.42333 N 39.82333 E (21 25 24,
// 39 49 24), 300 metres west of the Kaaba. Against the geodesic of WGS84 to the Kaaba (21.42249 N,
// 39.82621 E; GeographicLib 2.0) on a grid of whole degrees: within 0.26 degrees from 100 to 15,000
// kilometres, 0.7 up to 18,000, more towards the antipode. Within a
// hundred kilometres the shift of the target counts, within one it decides. Nothing depends on the
// year.

/// Direction of Mecca from the place of the last calculation. Written by ComputeQibla.
extern double QiblaRad;        // radians from north, positive to the east, [-Pi, Pi]
extern double QiblaDegrees;    // the same in degrees
extern std::string QiblaText;  // the sentence, in the language of the accepted settings

/// The bearing from a point, both in radians, north and west positive: radians as QiblaRad.
double BearingOfMecca(double latitude, double longitudeWest);

/// Works the three values out for the engine's place. A QiblaMethod other than 1 and 2 keeps the
/// bearing and words it anew.
void ComputeQibla();

}  // namespace horavex
