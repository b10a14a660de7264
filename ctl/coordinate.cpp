#include "ctl/coordinate.h"

#include "base/number_text.h"
#include "base/text.h"
#include "ctl/command.h"

namespace horavex {

namespace {

bool IsPlainNumber(const std::string& text) {
    return !text.empty() && IsDigit(text.front()) && IsDigit(text.back()) && text.size() < 10 &&
           IsNumeric(text);
}

bool IsWholeNumber(const std::string& text) {
    return !text.empty() && text.size() <= 3 && text.find_first_not_of("0123456789") == text.npos;
}

bool IsWithin(const CommandCoordinate& value, int largest) {
    const double size = value.degrees + value.minutes / 60.0 + value.seconds / 3600.0;
    return value.minutes < 60 && value.seconds < 60.0 && size <= largest;
}

}  // namespace

CommandCoordinate ParseCommandCoordinate(const std::string& text, const std::string& letters,
                                         int largest) {
    const std::string reason = "\"" + text + "\" is no coordinate such as 31:15:0" +
                               letters.front() + " up to " + std::to_string(largest) + " degrees";
    const std::size_t letter = text.empty() ? letters.npos : letters.find(text.back());
    if (letter == letters.npos) {
        RefuseUsage(reason);
    }
    auto parts = Split(text.substr(0, text.size() - 1), ':');
    if (parts.size() == 2) {
        parts.emplace_back("0");
    }
    if (parts.size() != 3 || !IsWholeNumber(parts[0]) || !IsWholeNumber(parts[1]) ||
        !IsPlainNumber(parts[2])) {
        RefuseUsage(reason);
    }
    const CommandCoordinate value{std::stoi(parts[0]), std::stoi(parts[1]), TextToNumber(parts[2]),
                                  letter == 1};
    if (!IsWithin(value, largest)) {
        RefuseUsage(reason);
    }
    return value;
}

CoordinateTexts TextsOf(const CommandCoordinate& coordinate) {
    const auto text = [&](double part) { return NumberToText(coordinate.negative ? -part : part); };
    return {text(coordinate.degrees), text(coordinate.minutes), text(coordinate.seconds)};
}

}  // namespace horavex
