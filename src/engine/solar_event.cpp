#include "engine/solar_event.h"

#include <algorithm>
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

/// The sun at an hour of the local clock on a day of the year.
struct Sky {
    double t;  // days, as SunAt counts them
    SunPosition sun;
};

Sky SkyAt(const YearConstants& constants, const EventPlace& at, std::int16_t day, double hours) {
    const double t = day + (at.longitudeWest + hours) / 24.0;
    return {t, SunAt(constants, t)};
}

/// Cosine of the hour angle at which the sun stands at a zenith distance; beyond 1 it never does.
double CosHourAngle(const EventPlace& at, double s, double cosZenith) {
    const double c = std::sqrt(1.0 - s * s);
    return (cosZenith - at.sinLatitude * s) / (at.cosLatitude * c);
}

/// The clock's hour at which the sun has gone H hours from its transit, whole days aside.
double ClockHour(const YearConstants& constants, const EventPlace& at, const Sky& sky, double H) {
    return at.longitudeWest +
           (sky.sun.rightAscension + H - constants.SiderealRate * sky.t - constants.SiderealEpoch) +
           at.timeZone;
}

}  // namespace

EventPlace EventPlaceOf(const YearPlace& place) {
    return {place.latitudeRad, std::sin(place.latitudeRad), std::cos(place.latitudeRad),
            place.longitudeWestRad * kHoursPerRadian, place.timeZone};
}

double SolarTransit(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                    double& latDecGap) {
    const Sky sky = SkyAt(constants, at, day, 12.0);
    const double declination = ArcSin(sky.sun.sinDeclination);
    const double R =
        (sky.sun.rightAscension - constants.SiderealRate * sky.t - constants.SiderealEpoch) +
        at.longitudeWest + at.timeZone;
    latDecGap = std::fabs(at.latitudeRad - declination);
    return WrapOnce(R);
}

double SolarTransit(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                    double& latDecGap) {
    return SolarTransit(constants, EventPlaceOf(place), day, latDecGap);
}

double EventTimeByCosine(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                         double cosZenith, double guess) {
    const Sky sky = SkyAt(constants, at, day, guess);
    const double x = CosHourAngle(at, sky.sun.sinDeclination, cosZenith);
    if (std::fabs(x) > 1.0) {
        return NoEvent;
    }
    double H = ArcCos(x) * kHoursPerRadian;
    // The guess alone decides, not the prayer: an Isha that slipped past midnight becomes a
    // small guess and goes on along the morning branch.
    if (guess < 12.0) {
        H = 24.0 - H;
    }
    return WrapOnce(ClockHour(constants, at, sky, H));
}

double EventTime(const YearConstants& constants, const YearPlace& place, std::int16_t day,
                 double zenith, double guess) {
    return EventTimeByCosine(constants, EventPlaceOf(place), day, std::cos(zenith), guess);
}

namespace {

/// A step from an hour of the clock to the one at which that hour's sun stands at the zenith
/// distance.
struct StepBeside {
    const YearConstants& constants;
    const EventPlace& at;
    std::int16_t day;
    double cosZenith;
    double transit;
    DayHalf half;

    /// x: the cosine of its hour angle; beyond 1 it never does, and the edge is taken.
    double From(double hours, double& x) const {
        constexpr double kEdge = 1.0 - 1e-12;
        const double side = half == DayHalf::kMorning ? -1.0 : 1.0;
        const Sky sky = SkyAt(constants, at, day, hours);
        x = CosHourAngle(at, sky.sun.sinDeclination, cosZenith);
        const double H = side * ArcCos(std::clamp(x, -kEdge, kEdge)) * kHoursPerRadian;
        const double hour = ClockHour(constants, at, sky, H);
        return hour + 24.0 * std::round((transit + H - hour) / 24.0);
    }
};

}  // namespace

double EventBeside(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                   double cosZenith, double transit, DayHalf half) {
    constexpr int kRounds = 6;  // each takes the error of the guess to a tenth at least
    const StepBeside step = {constants, at, day, cosZenith, transit, half};
    double hours = transit;
    double x = 0.0;
    for (int round = 0; round < kRounds; ++round) {
        // On the way the sun of another hour may not get there; the last round decides.
        const double before = hours;
        hours = step.From(hours, x);
        if (hours == before) {
            break;  // and so would all rounds after it
        }
    }
    return std::fabs(x) < 1.0 ? hours : NoEvent;
}

// The sun's declination moves by 0.0003 radians an hour at most. Where cos(latitude) is 0.1 at
// least, x moves by 0.12 at most within a day, and what begins below 0.85 stays below 0.97: there a
// step takes an error to 0.08 of it at most. From an hour that a step moves by less than 0.08 the
// event is less than 0.087 away, and the last of six rounds less than 0.00001 from that.
bool IsNearEventBeside(const YearConstants& constants, const EventPlace& at, std::int16_t day,
                       double cosZenith, double transit, DayHalf half, double hours) {
    constexpr double kLeastCosLatitude = 0.1;
    constexpr double kGreatestCosine = 0.85;
    constexpr double kGreatestStep = 0.08;  // hours
    if (at.cosLatitude < kLeastCosLatitude || std::fabs(hours - transit) > 12.0) {
        return false;
    }
    double x = 0.0;
    const double next = StepBeside{constants, at, day, cosZenith, transit, half}.From(hours, x);
    return std::fabs(x) < kGreatestCosine && std::fabs(next - hours) < kGreatestStep;
}

}  // namespace horavex
