#include "base/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "base/fault.h"
#include "base/rounding.h"
#include "base/text.h"

namespace horavex {

namespace {

constexpr int kSignificantDigits = 15;
constexpr double kFixedLimit = 1e6;  // from here on a number has no fixed form

/// A decimal number taken apart: digits without trailing zeros, times 10^exponent with the
/// mark behind the first digit.
struct Decimal {
    bool negative;
    std::string digits;
    int exponent;
};

Decimal TakeApart(double value) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                   std::chars_format::scientific, kSignificantDigits - 1)
                         .ptr;
    const std::string text(buffer, end);
    const std::size_t mark = text.find('e');
    std::string digits = text.substr(0, 1) + text.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    return {value < 0, digits, std::atoi(text.c_str() + mark + 1)};
}

std::string WholeNumber(const Decimal& number, char mark) {
    const auto whole = static_cast<std::size_t>(number.exponent) + 1;
    if (number.digits.size() <= whole) {
        return number.digits + std::string(whole - number.digits.size(), '0');
    }
    return number.digits.substr(0, whole) + mark + number.digits.substr(whole);
}

std::string Fraction(const Decimal& number, char mark) {
    return std::string("0") + mark +
           std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits;
}

std::string Scientific(const Decimal& number, char mark) {
    std::string text = number.digits.substr(0, 1);
    if (number.digits.size() > 1) {
        text += mark + number.digits.substr(1);
    }
    const int size = std::abs(number.exponent);
    return text + (number.exponent < 0 ? "E-" : "E+") + (size < 10 ? "0" : "") +
           std::to_string(size);
}

std::string Magnitude(const Decimal& number, char mark) {
    const int places = static_cast<int>(number.digits.size()) - 1 - number.exponent;
    if (number.exponent >= kSignificantDigits || places > kSignificantDigits) {
        return Scientific(number, mark);
    }
    return number.exponent >= 0 ? WholeNumber(number, mark) : Fraction(number, mark);
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
    std::size_t count = 0;
    while (from + count < text.size() && IsDigit(text[from + count])) {
        ++count;
    }
    return count;
}

bool IsSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-');
}

/// The text in the form that from_chars reads; nothing when it is no number.
std::optional<std::string> Canonical(std::string_view untrimmed) {
    const std::string_view text = Trim(untrimmed);
    std::string canonical = IsSign(text, 0) && text[0] == '-' ? "-" : "";
    std::size_t at = IsSign(text, 0) ? 1 : 0;
    const std::size_t whole = CountDigits(text, at);
    canonical += text.substr(at, whole);
    at += whole;
    std::size_t places = 0;
    if (at < text.size() && (text[at] == '.' || text[at] == ',')) {
        places = CountDigits(text, at + 1);
        canonical += "." + std::string(text.substr(at + 1, places));
        at += 1 + places;
    }
    if (whole + places == 0) {
        return std::nullopt;
    }
    if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
        const std::size_t digits = at + (IsSign(text, at + 1) ? 2 : 1);
        const std::size_t count = CountDigits(text, digits);
        if (count == 0) {
            return std::nullopt;
        }
        canonical += "e" + std::string(text[digits - 1] == '-' ? "-" : "") +
                     std::string(text.substr(digits, count));
        at = digits + count;
    }
    return at == text.size() ? std::optional(canonical) : std::nullopt;
}

}  // namespace

std::string NumberToText(double value, char decimalMark) {
    if (value == 0.0) {
        return "0";
    }
    if (!std::isfinite(value)) {
        return std::isnan(value) ? "NaN" : value < 0.0 ? "-Infinity" : "Infinity";
    }
    const Decimal number = TakeApart(value);
    return (number.negative ? "-" : "") + Magnitude(number, decimalMark);
}

std::string SignedFixedText(double value, char decimalMark) {
    if (!(std::fabs(value) < kFixedLimit)) {
        return NumberToText(value, decimalMark);
    }
    const auto hundredths = static_cast<long>(RoundHalfEven(value * 100.0));
    const long size = std::labs(hundredths);
    const std::string places = std::to_string(size % 100);
    return (hundredths < 0 ? "-" : "+") + std::to_string(size / 100) + decimalMark +
           std::string(2 - places.size(), '0') + places;
}

bool IsNumeric(std::string_view text) {
    return Canonical(text).has_value();
}

std::optional<double> NumberIn(std::string_view text) {
    try {
        return TextToNumber(text);
    } catch (const Fault&) {
        return std::nullopt;
    }
}

double TextToNumber(std::string_view text) {
    const auto canonical = Canonical(text);
    if (!canonical) {
        throw TypeMismatchFault("\"" + std::string(text) + "\" is not a number");
    }
    double value = 0.0;
    const auto result =
        std::from_chars(canonical->data(), canonical->data() + canonical->size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        throw OverflowFault("\"" + std::string(text) + "\" is beyond the range of numbers");
    }
    return value;
}

}  // namespace horavex
