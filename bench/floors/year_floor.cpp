#include "floors/year_floor.h"

#include <cmath>

#include "base/date.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/equation_of_time.h"
#include "engine/solar_event.h"

namespace horavex::bench {

namespace {

double WrapOnce(double hours) {
    hours = hours < 0.0 ? hours + 24.0 : hours;
    return hours > 24.0 ? hours - 24.0 : hours;
}

/// Right ascension in hours.
double RightAscension(double y, double x) {
    const double base = x == 0.0   ? Pi / 2.0
                        : y == 0.0 ? 0.0
                                   : std::atan(std::fabs(y) / std::fabs(x));
    const double angle = y >= 0.0 ? (x >= 0.0 ? base : Pi - base) : (x >= 0.0 ? -base : base - Pi);
    const double hours = angle * kHoursPerRadian;
    return hours < 0.0 ? hours + 24.0 : hours;
}

}  // namespace

void FloorYear(const YearInputs& inputs, YearTimes& times) {
    const YearConstants c = ConstantsOf(inputs);
    const double lonH = inputs.place.longitudeWestRad * kHoursPerRadian;
    const double latitude = inputs.place.latitudeRad;
    const double sinLatitude = std::sin(latitude);
    const double cosLatitude = std::cos(latitude);
    const double cosHorizon = std::cos(DegToRad(kHorizonZenith));
    const int days = 365 + LeapFlagOf(inputs.year);
    const Date newYear = DateSerial(inputs.year, 1, 1);
    double cosZenith[kPrayerCount];
    cosZenith[kFajr] = std::cos(DegToRad(inputs.method.fajrAngle + 90.0));
    cosZenith[kShurooq] = cosHorizon;
    cosZenith[kMaghrib] = cosHorizon;
    cosZenith[kIsha] = std::cos(DegToRad(inputs.method.ishaAngle + 90.0));
    double guess[kPrayerCount] = {4.0, 6.0, 12.0, 15.0, 18.0, 20.0};
    constexpr Prayer kOrder[] = {kZuhr, kShurooq, kAsr, kMaghrib, kFajr, kIsha};
    for (int day = 0; day <= days; ++day) {
        if (day > 0) {
            EquationOfTime(newYear + (day - 1));
        }
        for (const Prayer prayer : kOrder) {
            const double t = day + (lonH + guess[prayer]) / 24.0;
            const double M = c.SunAnomalyRate * t + c.SunAnomalyEpoch;
            const double L = c.SunCenterCoef1 * std::sin(M) + (c.SunPerigeeLongitude + M) +
                             c.SunCenterCoef2 * std::sin(2.0 * M);
            const double sinL = std::sin(L);
            const double ascension = RightAscension(c.CosObliquity * sinL, std::cos(L));
            const double s = c.SinObliquity * sinL;
            const double cosDeclination = std::sqrt(1.0 - s * s);
            double hours = 0.0;
            if (prayer == kZuhr) {
                hours = WrapOnce((ascension - c.SiderealRate * t - c.SiderealEpoch) + lonH +
                                 inputs.place.timeZone);
                const double gap = std::fabs(latitude - std::atan(s / cosDeclination));
                cosZenith[kAsr] = std::cos(std::atan(std::tan(gap) + inputs.method.asrRatio));
            } else {
                const double x =
                    (cosZenith[prayer] - sinLatitude * s) / (cosLatitude * cosDeclination);
                double H = (std::atan(-x / std::sqrt(1.0 - x * x)) + Pi / 2.0) * kHoursPerRadian;
                H = guess[prayer] < 12.0 ? 24.0 - H : H;
                hours = WrapOnce(lonH + (ascension + H - c.SiderealRate * t - c.SiderealEpoch) +
                                 inputs.place.timeZone);
                guess[prayer] = hours;
            }
            if (day > 0) {
                times[prayer][static_cast<std::size_t>(day - 1)] = hours;
            }
        }
    }
}

}  // namespace horavex::bench
