#include "engine/solar_event.h"

#include <cmath>

#include "engine/angle.h"

namespace horavex {

namespace {

// Onto the clock's face, by one turn at most; exactly 24 stays.
double WrapOnce(double hours) {
    if (hours < 0.0) {
        hours += 24.0;
    }
    if (hours > 24.0) {
        hours -= 24.0;
    }
    return hours;
}

}  // namespace

double SolarTransit(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                    double& latDecGap) {
    const double lonH = place.longitudeWestRad * kHoursPerRadian;
    const double t = day + (lonH + 12.0) / 24.0;
    const SunPosition sun = SunAt(constants, t);
    const double declination = ArcSin(sun.sinDeclination);
    const double R = (sun.rightAscension - constants.SiderealRate * t - constants.SiderealEpoch) +
                     lonH + place.timeZone;
    latDecGap = std::fabs(place.latitudeRad - declination);
    return WrapOnce(R);
}

double EventTime(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                 double zenith, double guess) {
    const double lonH = place.longitudeWestRad * kHoursPerRadian;
    const double t = day + (lonH + guess) / 24.0;
    const SunPosition sun = SunAt(constants, t);
    const double s = sun.sinDeclination;
    const double c = std::sqrt(1.0 - s * s);
    const double x =
        (std::cos(zenith) - std::sin(place.latitudeRad) * s) / (std::cos(place.latitudeRad) * c);
    if (std::fabs(x) > 1.0) {
        return NoEvent;
    }
    double H = ArcCos(x) * kHoursPerRadian;
    // The guess alone decides, not the prayer: an Isha that slipped past midnight becomes a
    // small guess and goes on along the morning branch.
    if (guess < 12.0) {
        H = 24.0 - H;
    }
    return WrapOnce(
        lonH + (sun.rightAscension + H - constants.SiderealRate * t - constants.SiderealEpoch) +
        place.timeZone);
}

}  // namespace horavex
