#include "lang/profile_file.h"

#include "base/text.h"

namespace horavex {

namespace {

/// Takes one line off the front, without its end.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

bool IsSectionHeader(std::string_view line) {
    return !line.empty() && line.front() == '[';
}

bool IsHeaderOf(std::string_view line, std::string_view section) {
    const std::size_t end = line.find(']');
    return IsSectionHeader(line) && end != std::string_view::npos &&
           EqualsIgnoringCase(Trim(line.substr(1, end - 1)), section);
}

bool SkipToSection(std::string_view& rest, std::string_view section) {
    while (!rest.empty()) {
        if (IsHeaderOf(Trim(TakeLine(rest)), section)) {
            return true;
        }
    }
    return false;
}

std::string_view Unquote(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::optional<std::string_view> FindProfileValue(std::string_view file, std::string_view section,
                                                 std::string_view key) {
    if (!SkipToSection(file, section)) {
        return std::nullopt;
    }
    while (!file.empty()) {
        const std::string_view line = Trim(TakeLine(file));
        if (IsSectionHeader(line)) {
            return std::nullopt;
        }
        const std::size_t mark = line.find('=');
        const bool comment = line.starts_with(';');
        if (!comment && mark != std::string_view::npos &&
            EqualsIgnoringCase(Trim(line.substr(0, mark)), key)) {
            return Unquote(Trim(line.substr(mark + 1)));
        }
    }
    return std::nullopt;
}

}  // namespace horavex
