#pragma once

#include <cstdint>

namespace horavex {

/// Place of the calculation, radians. Written by RecalculateYear from the working location.
extern double LatitudeRad;       // north positive, -Pi/2 to Pi/2
extern double LongitudeWestRad;  // west positive, -Pi to Pi

/// The answer for a sun that does not reach the wanted zenith distance on a day.
inline constexpr double NoEvent = 10000000.0;

/// Clock hour of the sun's transit on a day of the year, 1 for the first of January; 0 to 24.
/// latDecGap takes abs(latitude - declination) at transit, radians. Needs the year constants.
double SolarTransit(std::int16_t day, double& latDecGap);

/// Clock hour at which the sun stands at a zenith distance (radians), or NoEvent. The sun is
/// taken at the moment of guess (hours); a guess below 12 asks for the morning event. Throws
/// DivisionByZeroFault for a sun that just touches the zenith distance.
double EventTime(std::int16_t day, double zenith, double guess);

}  // namespace horavex
