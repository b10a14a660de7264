#pragma once

#include <cstdint>

#include "engine/place.h"
#include "engine/sun.h"

namespace horavex {

/// The answer for a sun that does not reach the wanted zenith distance on a day.
inline constexpr double NoEvent = 10000000.0;

/// True for an hour of the clock; false for NoEvent, with or without a daylight hour on it.
constexpr bool IsEvent(double hours) {
    return hours > -NoEvent / 2.0 && hours < NoEvent / 2.0;
}

/// Degrees from the zenith at sunrise and sunset: refraction and the sun's semi-diameter.
inline constexpr double kHorizonZenith = 90.83;

/// A place with what each event takes of it.
struct EventPlace {
    double latitudeRad;
    double sinLatitude;
    double cosLatitude;
    double longitudeWest;  // hours
    double timeZone;       // hours east of Greenwich
};

EventPlace EventPlaceOf(const YearPlace& place);

/// Clock hour of the sun's transit on a day of the year of the constants, 1 for the first of
/// January; 0 to 24. latDecGap takes abs(latitude - declination) at transit, radians.
double SolarTransit(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                    double& latDecGap);
double SolarTransit(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                    double& latDecGap);

/// Clock hour at which the sun stands at a zenith distance (radians), or NoEvent. The sun is
/// taken at the moment of guess (hours); a guess below 12 asks for the morning event. Throws
/// DivisionByZeroFault for a sun that just touches the zenith distance.
double EventTime(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                 double zenith, double guess);

/// The same with the cosine of the zenith distance, for callers that keep it.
double EventTimeByCosine(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                         double cosZenith, double guess);

/// Which side of the transit.
enum class DayHalf { kMorning, kEvening };

/// The hour at which the sun stands at a zenith distance on one side of a transit (hours of the
/// local clock), whatever day of the clock it falls on: from 12 before the transit to 12 after it.
/// NoEvent where the sun does not get there.
double EventBeside(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                   double cosZenith, double transit, DayHalf half);

/// True only where that hour lies within a tenth of an hour of a given one, at a sixth of the cost.
/// False tells nothing.
bool IsNearEventBeside(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                       double cosZenith, double transit, DayHalf half, double hours);

}  // namespace horavex
