#include "lang/profile_file.h"

#include <algorithm>

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

std::string_view Unquote(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

ProfileIndex::ProfileIndex(std::string_view file) {
    std::vector<std::string_view> sections;
    bool isFirstOfItsName = false;  // nor does what stands in front of all sections count
    std::string_view rest = WithoutByteOrderMark(file);
    while (!rest.empty()) {
        const std::string_view line = TakeLine(rest);
        if (const auto name = SectionOf(line)) {
            isFirstOfItsName = std::ranges::none_of(
                sections, [&](std::string_view known) { return EqualsIgnoringCase(known, *name); });
            sections.push_back(*name);
        } else if (const auto assignment = AssignmentOf(line); assignment && isFirstOfItsName) {
            values_.push_back({sections.back(), assignment->key, Unquote(assignment->value)});
        }
    }
    std::ranges::stable_sort(values_, ComesFirst);
}

bool ProfileIndex::ComesFirst(const Value& a, const Value& b) {
    return ComesFirstIgnoringCase(a.section, b.section) ||
           (EqualsIgnoringCase(a.section, b.section) && ComesFirstIgnoringCase(a.key, b.key));
}

std::optional<std::string_view> ProfileIndex::Find(std::string_view section,
                                                   std::string_view key) const {
    const auto found = std::ranges::lower_bound(values_, Value{section, key, {}}, ComesFirst);
    const bool isIt = found != values_.end() && EqualsIgnoringCase(found->section, section) &&
                      EqualsIgnoringCase(found->key, key);
    return isIt ? std::optional(found->value) : std::nullopt;
}

std::optional<std::string_view> FindProfileValue(std::string_view file, std::string_view section,
                                                 std::string_view key) {
    return ProfileIndex(file).Find(section, key);
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
