#include "lang/pack_number.h"

#include "base/number_text.h"
#include "lang/language_pack.h"

namespace horavex {

char PackDecimalMark() {
    return GetLangString("timetables", "DecimalMark", ".") == "," ? ',' : '.';
}

namespace {

constexpr long kFiveDigits = 10000;

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

}  // namespace

std::string PackNumber(double value) {
    return NumberToText(value, PackDecimalMark());
}

// The pack shows by a number of its own where marks stand, and some set none among four digits.
std::string PackWholeNumber(long value) {
    const std::string sample = value < kFiveDigits
                                   ? GetLangString("timetables", "Thousand", "1234")
                                   : GetLangString("timetables", "Million", "1234567");
    const std::string digits = std::to_string(value);
    std::string text;
    std::size_t left = digits.size();
    for (auto letter = sample.rbegin(); letter != sample.rend() && left > 0; ++letter) {
        text.insert(text.begin(), IsDigit(*letter) ? digits[--left] : *letter);
    }
    return digits.substr(0, left) + text;
}

}  // namespace horavex
