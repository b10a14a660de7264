#include "moon/moon_angle.h"

#include <cmath>
#include <string>

#include "base/fault.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "engine/angle.h"

namespace horavex {

namespace {

constexpr int kPlaces = 6;
constexpr int kMostTenths = 101;
constexpr double kMostTurns = 1e6;

/// Hours of sidereal time at Greenwich at midnight, unrounded.
double SiderealHoursAtMidnight(const CivilDate& date) {
    const double T = (CivilToJulian(date.year, date.month, date.day) - 2451545.0) / 36525.0;
    return WrapHours(6.697374558 + 2400.051336 * T + 0.000025862 * T * T);
}

}  // namespace

double SinDegrees(double degrees) {
    return std::sin(degrees * kRadiansPerDegree);
}

double CosDegrees(double degrees) {
    return std::cos(degrees * kRadiansPerDegree);
}

double TanDegrees(double degrees) {
    return std::tan(degrees * kRadiansPerDegree);
}

double ArcSinDegrees(double x) {
    return ArcSin(x) * kDegreesPerRadian;
}

double ArcCosDegrees(double x) {
    return ArcCos(x) * kDegreesPerRadian;
}

double ArcTanDegrees(double y, double x) {
    return std::atan(Quotient(y, x)) * kDegreesPerRadian;
}

double Quotient(double a, double b) {
    if (b == 0.0) {
        throw DivisionByZeroFault("division by zero in the moon's rise and set");
    }
    return a / b;
}

double RoundToSix(double value) {
    return RoundToPlaces(value, kPlaces);
}

double ClockToDecimal(std::int16_t whole, std::int16_t minutes, double seconds) {
    return RoundToSix((seconds / 60.0 + minutes) / 60.0 + whole);
}

double ClockToDecimal(const ThreeParts& parts) {
    return ClockToDecimal(parts.whole, parts.minutes, parts.seconds);
}

ThreeParts DecimalToClock(double value) {
    return DecimalToClock(value, kPlaces);
}

ThreeParts DecimalToClock(double value, int secondPlaces) {
    const double a = std::fabs(value);
    const std::int16_t h = TextIntegerPart(a);
    const std::int16_t m = RoundToInt16(std::floor((a - h) * 60.0));
    const double s = RoundToPlaces(RoundToSix(((a - h) * 60.0 - m) * 60.0), secondPlaces);
    if (value > 0.0) {
        return {h, m, s};
    }
    return {SubtractInt16(0, h), SubtractInt16(0, m), -s};
}

std::int16_t TextIntegerPart(double value) {
    int n = 0;
    while (!(value >= -1.0 && value < 1.0) && n < kMostTenths) {
        value /= 10.0;
        ++n;
    }
    if (n == 0) {
        return 0;
    }
    const std::string text = NumberToText(value * 1000000000000.0);
    return RoundToInt16(
        TextToNumber(text.substr(0, static_cast<std::size_t>(value < 0.0 ? n + 1 : n))));
}

double WrapRange(double value, double low, double high) {
    // A damaged zone can be so far off that turns taken away one by one never end.
    if (!(std::fabs(value) < kMostTurns * high)) {
        return FloatMod(value, high);
    }
    while (value > high) {
        value -= high;
    }
    while (value < low) {
        value += high;
    }
    return value;
}

double WrapHours(double hours) {
    return WrapRange(hours, 0.0, 24.0);
}

double CivilToJulian(int year, int month, double day) {
    const bool gregorian =
        year > 1582 || (year == 1582 && (month > 10 || (month == 10 && day >= 15.0)));
    const bool early = month <= 2;
    const int y = early ? year - 1 : year;
    const int m = early ? month + 12 : month;
    const double A = std::floor(y / 100.0);
    const double B = gregorian ? 2.0 - A + std::floor(A / 4.0) : 0.0;
    const double C = std::floor(y < 0 ? 365.25 * y - 0.75 : 365.25 * y);
    const double D = std::floor(30.6001 * (m + 1));
    return B + C + D + day + 1720994.5;
}

double DaysSince1990(int day, int month, int year) {
    return DateSerial(year, month, day) - DateSerial(1990, 1, 1) + 1.0;
}

ThreeParts GreenwichSiderealAtMidnight(const CivilDate& date) {
    return DecimalToClock(SiderealHoursAtMidnight(date), 2);
}

ThreeParts SiderealToUniversal(const CivilDate& date, const ThreeParts& sidereal) {
    const double A =
        WrapHours(ClockToDecimal(sidereal) - SiderealHoursAtMidnight(date)) * 0.9972695663;
    return DecimalToClock(A, 2);
}

ThreeParts LocalToGreenwichSidereal(const ThreeParts& local, double longitude) {
    return DecimalToClock(WrapHours(ClockToDecimal(local) - longitude / 15.0), 2);
}

int QuadrantOfXY(double x, double y) {
    if (x == 0.0 || y == 0.0) {
        return 0;
    }
    if (y > 0.0) {
        return x > 0.0 ? 1 : 2;
    }
    return x < 0.0 ? 3 : 4;
}

int QuadrantOfAngle(double degrees) {
    const auto within = [degrees](double low, double high) {
        return degrees > low && degrees < high;
    };
    if (within(-90.0, 0.0) || within(270.0, 360.0)) {
        return 4;
    }
    if (within(-180.0, -90.0) || within(180.0, 270.0)) {
        return 3;
    }
    if (within(90.0, 180.0)) {
        return 2;
    }
    return within(0.0, 90.0) ? 1 : 0;
}

double AngleInQuadrant(double y, double x) {
    const double a = RoundToSix(ArcTanDegrees(y, x));
    return a + 90.0 * (QuadrantOfAngle(a) - QuadrantOfXY(x, y));
}

}  // namespace horavex
