#pragma once

#include <cstdint>
#include <string>

namespace horavex {

// Angles out of five functions: sine, cosine, tangent, arctangent, square root. The inverse
// functions, the quadrants and the conversions are forms over them, which keep their own failures
// at the edges of the domain; a library's acos or atan2 would give other last bits, and 0 or Pi
// where a fault is told. Accuracy: that of 64-bit floats, but close to 1 and -1 ArcCos and ArcSin
// lose as many figures as 1 - x*x does. No year of validity: nothing here knows time.

/// 4 x arctan(1), the float nearest to it.
extern const double Pi;

/// Carriage return and line feed; joins the lines of every composed message.
extern const std::string Crlf;

/// Hours in a radian: 12/Pi to 15 figures. Every conversion of radians to hours uses this literal,
/// which is 2e-15 above the quotient of the floats: less than a billionth of a second in a day, and
/// yet other last bits, which tests of the engine compare.
inline constexpr double kHoursPerRadian = 3.81971863420549;

double DegToRad(double degrees);
double RadToDeg(double radians);

/// abs(degrees) + minutes/60 + seconds/3600, negated as a whole when degrees is negative. With 0
/// degrees the value is never negative unless minutes or seconds are: -0 degrees has no sign.
double DmsToDegrees(std::int32_t degrees, std::int16_t minutes, double seconds);

/// The plain sum hours + minutes/60 + seconds/3600; signs are not looked at.
double HmsToHours(std::int16_t hours, std::int16_t minutes, double seconds);

/// value minus floor(value / modulus) times modulus: 0 up to but without a positive modulus,
/// also for negative values.
double FloatMod(double value, double modulus);

/// FloatMod(degrees, 360).
double Normalize360(double degrees);

/// Inverse cosine, radians in (0, Pi). Throws DivisionByZeroFault at exactly 1 and -1, where the
/// form divides by zero, and SquareRootFault beyond them.
double ArcCos(double x);

/// Inverse sine, radians in (-Pi/2, Pi/2). Throws as ArcCos does.
double ArcSin(double x);

/// Angle of the point (x, y), radians in [-Pi, Pi]. Two exact zeros have no angle: the handler
/// of undefined angles runs, which ends the program.
double Atan2Checked(double y, double x);

/// What Atan2Checked calls for two zeros; it must not return. nullptr takes the handler away,
/// and two zeros then throw DivisionByZeroFault.
void SetUndefinedAngleHandler(void (*handler)());

/// Whole degrees and minutes of decimal degrees, as labels print them.
struct DegreesMinutes {
    std::int16_t whole;    // truncated toward zero; carries the sign, so -0.5 has none
    std::int16_t minutes;  // 0 to 60, rounded half to even; 60 is not carried on
};

/// Throws OverflowFault where the whole degrees leave a 16-bit field.
DegreesMinutes SplitDegrees(double degrees);

/// Degrees of a coordinate that is stored as degrees x 100, north and east positive.
double StoredCoord(std::int16_t stored);

}  // namespace horavex
