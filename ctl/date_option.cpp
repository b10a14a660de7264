#include "ctl/date_option.h"

#include <algorithm>

#include "base/text.h"
#include "ctl/command.h"

namespace horavex {

namespace {

/// True for a text with a digit for each 0 of the shape, and else the shape's characters.
bool HasShape(const std::string& text, const std::string& shape) {
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(),
                      [](char c, char wanted) { return wanted == '0' ? IsDigit(c) : c == wanted; });
}

}  // namespace

void AddDateOption(CLI::App& command, std::string& date) {
    command.add_option("--date", date, "A day, such as 2026-11-21")->required();
}

DateNumbers ParseDateOption(const std::string& text) {
    const auto parts = Split(text, '-');
    const auto numbers =
        parts.size() == 3 ? ReadDateText(parts[2] + "/" + parts[1] + "/" + parts[0]) : std::nullopt;
    if (!numbers) {
        RefuseUsage("--date wants a day such as 2026-11-21, not \"" + text + "\"");
    }
    return *numbers;
}

void RefuseDate(const std::string& text) {
    RefuseUsage("--date: there is no day \"" + text + "\"");
}

DateNumbers ParseCivilDateOption(const std::string& text) {
    const DateNumbers numbers = ParseDateOption(text);
    if (!IsCivilDate(numbers.year, numbers.month, numbers.day)) {
        RefuseDate(text);
    }
    return numbers;
}

Date ParseMomentOption(const std::string& text) {
    const std::string moment = HasShape(text, "0000-00-00") ? text + "T00:00:00" : text;
    if (HasShape(moment, "0000-00-00T00:00:00")) {
        const auto field = [&](std::size_t at) { return std::stoi(moment.substr(at, 2)); };
        const int year = std::stoi(moment.substr(0, 4));
        if (IsCivilDate(year, field(5), field(8)) && field(11) < 24 && field(14) < 60 &&
            field(17) < 60) {
            return DateSerial(year, field(5), field(8)) +
                   TimeSerial(field(11), field(14), field(17));
        }
    }
    RefuseUsage("--at wants a moment such as 2026-11-21T12:34:56, not \"" + text + "\"");
}

}  // namespace horavex
