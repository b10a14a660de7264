#include "ctl/date_option.h"

#include "base/date.h"
#include "base/text.h"
#include "ctl/command.h"

namespace horavex {

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

}  // namespace horavex
