#include "engine/equation_of_time.h"

#include <cmath>

#include "engine/angle.h"

namespace horavex {

namespace {

// This series carries a pi of its own, to 15 figures; the picoseconds that it is off show nowhere.
constexpr double kPi = 3.14159265358979;
constexpr double kMinuteOfDay = 720.0;  // the series is evaluated at noon

double SinDegrees(double degrees) {
    return std::sin(degrees * kPi / 180.0);
}

// Julian centuries from noon of 1 January 2000. Years begin with March, whose months 30.6 days
// apart, rounded, count the days before a month; 8707.5 days lie between the base of the count, the
// last of February 1976, and the epoch.
double CenturiesOf(Date date) {
    const CivilDate civil = CivilFromDate(date);
    const bool early = civil.month < 3;
    const int year = early ? civil.year - 1 : civil.year;
    const int m = early ? civil.month + 9 : civil.month - 3;
    const double d = std::floor(m * 30.6 + 0.5) + civil.day + (kMinuteOfDay / 60.0) / 24.0;
    const double D = std::floor((year - 1976) * 365.25) + d - 8707.5;
    return D / 36525.0;
}

}  // namespace

double EquationOfTime(Date date) {
    const double C = CenturiesOf(date);
    const double G = Normalize360(C * 35999.05 + 357.528);  // mean anomaly, degrees
    const double E = 1.915 * SinDegrees(G) + 0.02 * SinDegrees(2.0 * G);
    const double L = Normalize360(C * 36000.77 + 280.46 + E);  // ecliptic longitude, degrees
    const double A = L - 2.466 * SinDegrees(2.0 * L) + 0.053 * SinDegrees(4.0 * L);
    return (L - E - A) / 15.0 * 60.0;
}

}  // namespace horavex
