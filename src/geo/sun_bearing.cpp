#include "geo/sun_bearing.h"

#include <cmath>

#include "base/int16.h"
#include "engine/angle.h"
#include "engine/place.h"
#include "engine/ruled_year.h"
#include "engine/sun.h"
#include "engine/year_table.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

/// A moment of the local clock in Universal Time, counted on its local day.
struct Moment {
    double day;    // 1 for the first of January
    double hours;  // Universal Time of that day; may lie outside 0 to 24
};

Moment MomentOf(Date now) {
    const Date midnight = std::floor(now);
    const double daylightHour = IsDaylightDay(now, ActiveSettings) ? 1.0 : 0.0;
    return {midnight - DateSerial(CivilFromDate(now).year, 1, 1) + 1.0,
            (now - midnight) * 24.0 - ActiveSettings.TimeZone - daylightHour};
}

}  // namespace

std::optional<double> SunBearing(Date now) {
    const Moment moment = MomentOf(now);
    const double t = moment.day + moment.hours / 24.0;
    const YearConstants constants =
        YearConstantsOf(ToInt16(CivilFromDate(now).year), RuledYear.rules.moments.start);
    const SunPosition sun = SunAt(constants, t);
    const double lonH = LongitudeWestRad * kHoursPerRadian;
    const double H = (moment.hours - lonH - sun.rightAscension + constants.SiderealRate * t +
                      constants.SiderealEpoch) /
                     kHoursPerRadian;
    const double s = sun.sinDeclination;
    const double c = std::sqrt(1.0 - s * s);
    const double sinHeight = std::sin(LatitudeRad) * s + std::cos(LatitudeRad) * c * std::cos(H);
    if (sinHeight < 0.0) {
        return std::nullopt;
    }
    return std::atan2(-c * std::sin(H),
                      s * std::cos(LatitudeRad) - c * std::sin(LatitudeRad) * std::cos(H));
}

}  // namespace horavex
