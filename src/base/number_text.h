#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace horavex {

/// The system's general form of a number: up to 15 significant digits and no trailing zeros.
/// Plain digits as long as 15 digits before or 15 places behind the mark hold the number,
/// otherwise one digit, places, "E", a sign and at least two digits: 0.25, -3, 1E+15,
/// 3.33333333333333E-02. decimalMark stands between whole and fraction. What is no number or not
/// finite is "NaN", "Infinity" or "-Infinity", which no reader takes for one.
std::string NumberToText(double value, char decimalMark = '.');

/// A number with a sign and two places, the form "+#0.00;-#0.00": "+2.00", "-5.50", "+0.00".
/// Rounded to the nearest hundredth. From a million on, and for what is no number, the general
/// form.
std::string SignedFixedText(double value, char decimalMark = '.');

/// True for what TextToNumber accepts: blanks around, a sign in front, digits with at most one
/// mark (point or comma), and an exponent. A lone sign or mark is no number.
bool IsNumeric(std::string_view text);

/// The number that a text holds; nothing for a text that is not numeric and for one too large or
/// too small for a 64-bit float.
std::optional<double> NumberIn(std::string_view text);

/// The number that a text holds. Throws TypeMismatchFault for a text that is not numeric and
/// OverflowFault for one too large or too small for a 64-bit float.
double TextToNumber(std::string_view text);

}  // namespace horavex
