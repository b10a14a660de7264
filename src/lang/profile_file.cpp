#include "lang/profile_file.h"

#include "base/text.h"

namespace horavex {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutByteOrderMark(std::string_view file) {
    return file.starts_with(kByteOrderMark) ? file.substr(kByteOrderMark.size()) : file;
}

/// Takes one line off the front, without its end and the blanks around it.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return Trim(line);
}

/// The name of the section that a line opens.
std::optional<std::string_view> SectionOf(std::string_view line) {
    const std::size_t end = line.find(']');
    if (!line.starts_with('[') || end == std::string_view::npos) {
        return std::nullopt;
    }
    return Trim(line.substr(1, end - 1));
}

/// Key and value of a line, still with its quotes.
struct Assignment {
    std::string_view key;
    std::string_view value;
};

std::optional<Assignment> AssignmentOf(std::string_view line) {
    const std::size_t mark = line.find('=');
    if (line.starts_with(';') || line.starts_with('[') || mark == std::string_view::npos) {
        return std::nullopt;
    }
    return Assignment{Trim(line.substr(0, mark)), Trim(line.substr(mark + 1))};
}

bool SkipToSection(std::string_view& rest, std::string_view section) {
    while (!rest.empty()) {
        const auto name = SectionOf(TakeLine(rest));
        if (name && EqualsIgnoringCase(*name, section)) {
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
    std::string_view rest = WithoutByteOrderMark(file);
    if (!SkipToSection(rest, section)) {
        return std::nullopt;
    }
    while (!rest.empty()) {
        const std::string_view line = TakeLine(rest);
        if (SectionOf(line)) {
            return std::nullopt;
        }
        const auto assignment = AssignmentOf(line);
        if (assignment && EqualsIgnoringCase(assignment->key, key)) {
            return Unquote(assignment->value);
        }
    }
    return std::nullopt;
}

std::vector<ProfileEntry> ListProfileEntries(std::string_view file) {
    std::vector<ProfileEntry> entries;
    std::string section;
    std::string_view rest = WithoutByteOrderMark(file);
    while (!rest.empty()) {
        const std::string_view line = TakeLine(rest);
        if (const auto name = SectionOf(line)) {
            section = *name;
        } else if (const auto assignment = AssignmentOf(line)) {
            entries.push_back({section, std::string(assignment->key)});
        }
    }
    return entries;
}

}  // namespace horavex
