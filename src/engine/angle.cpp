#include "engine/angle.h"

#include <cmath>

#include "base/fault.h"
#include "base/int16.h"

namespace horavex {

const double Pi = 4.0 * std::atan(1.0);
const std::string Crlf = "\r\n";

namespace {

void (*undefinedAngleHandler)() = nullptr;

// The denominator that both inverse functions share. No caller may pass the edge of the domain
// on as 0 or Pi: such a value was never produced.
double CheckedCofactor(double x) {
    const double square = 1.0 - x * x;
    if (square < 0.0) {
        throw SquareRootFault("square root of a negative number in an inverse function");
    }
    if (square == 0.0) {
        throw DivisionByZeroFault("division by zero in an inverse function");
    }
    return std::sqrt(square);
}

[[noreturn]] void ReportUndefinedAngle() {
    if (undefinedAngleHandler != nullptr) {
        undefinedAngleHandler();
    }
    throw DivisionByZeroFault("the direction of the point 0, 0 is undefined");
}

double BaseAngle(double y, double x) {
    if (x == 0.0) {
        return Pi / 2.0;
    }
    return y == 0.0 ? 0.0 : std::atan(std::fabs(y) / std::fabs(x));
}

}  // namespace

double DegToRad(double degrees) {
    return degrees * std::atan(1.0) / 45.0;
}

double RadToDeg(double radians) {
    return radians * 45.0 / std::atan(1.0);
}

double DmsToDegrees(std::int32_t degrees, std::int16_t minutes, double seconds) {
    const double size = std::fabs(static_cast<double>(degrees)) + minutes / 60.0 + seconds / 3600.0;
    return degrees < 0 ? -size : size;
}

double HmsToHours(std::int16_t hours, std::int16_t minutes, double seconds) {
    return hours + minutes / 60.0 + seconds / 3600.0;
}

double FloatMod(double value, double modulus) {
    return value - std::floor(value / modulus) * modulus;
}

double Normalize360(double degrees) {
    return degrees - std::floor(degrees / 360.0) * 360.0;
}

double ArcCos(double x) {
    return std::atan(-x / CheckedCofactor(x)) + Pi / 2.0;
}

double ArcSin(double x) {
    return std::atan(x / CheckedCofactor(x));
}

double Atan2Checked(double y, double x) {
    if (x == 0.0 && y == 0.0) {
        ReportUndefinedAngle();
    }
    const double a = BaseAngle(y, x);
    if (y >= 0.0 && x >= 0.0) {
        return a;
    }
    if (y >= 0.0 && x <= 0.0) {
        return Pi - a;
    }
    if (y <= 0.0 && x >= 0.0) {
        return -a;
    }
    return a - Pi;
}

void SetUndefinedAngleHandler(void (*handler)()) {
    undefinedAngleHandler = handler;
}

DegreesMinutes SplitDegrees(double degrees) {
    const std::int16_t whole = TruncateToInt16(degrees);
    return {whole, RoundToInt16(std::fabs(degrees - whole) * 60.0)};
}

double StoredCoord(std::int16_t stored) {
    return stored == 0 ? 0.0 : stored / 100.0;
}

}  // namespace horavex
