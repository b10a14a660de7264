#include "engine/solar_event.h"

#include <cmath>

#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/sun.h"
#include "store/settings_record.h"

namespace horavex {

double LatitudeRad = 0.0;
double LongitudeWestRad = 0.0;

namespace {

const ProgramStateReset reset([] {
    LatitudeRad = 0.0;
    LongitudeWestRad = 0.0;
});

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

double SolarTransit(std::int16_t day, double& latDecGap) {
    const double lonH = LongitudeWestRad * kHoursPerRadian;
    const double t = day + (lonH + 12.0) / 24.0;
    const SunPosition sun = SunAt(t);
    const double declination = ArcSin(sun.sinDeclination);
    const double R =
        (sun.rightAscension - SiderealRate * t - SiderealEpoch) + lonH + Settings.TimeZone;
    latDecGap = std::fabs(LatitudeRad - declination);
    return WrapOnce(R);
}

double EventTime(std::int16_t day, double zenith, double guess) {
    const double lonH = LongitudeWestRad * kHoursPerRadian;
    const double t = day + (lonH + guess) / 24.0;
    const SunPosition sun = SunAt(t);
    const double s = sun.sinDeclination;
    const double c = std::sqrt(1.0 - s * s);
    const double x = (std::cos(zenith) - std::sin(LatitudeRad) * s) / (std::cos(LatitudeRad) * c);
    if (std::fabs(x) > 1.0) {
        return NoEvent;
    }
    double H = ArcCos(x) * kHoursPerRadian;
    // The guess alone decides, not the prayer: an Isha that slipped past midnight becomes a
    // small guess and goes on along the morning branch.
    if (guess < 12.0) {
        H = 24.0 - H;
    }
    return WrapOnce(lonH + (sun.rightAscension + H - SiderealRate * t - SiderealEpoch) +
                    Settings.TimeZone);
}

}  // namespace horavex
