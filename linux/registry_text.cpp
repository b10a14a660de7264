#include "linux/registry_text.h"

#include <algorithm>

#include "base/text.h"
#include "base/utf8.h"
#include "linux/registry_escape.h"

namespace horavex {

namespace {

// The first '=' without a backslash in front of it.
std::size_t FindEquals(std::string_view line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '=') {
            return i;
        }
        if (line[i] == '\\') {
            ++i;
        }
    }
    return std::string_view::npos;
}

// The key of a section line; nothing where the line is damaged.
std::shared_ptr<const std::string> SectionOf(std::string_view line) {
    if (!line.ends_with(']') || !IsUtf8(line)) {
        return nullptr;
    }
    return std::make_shared<const std::string>(
        UnescapeRegistryText(line.substr(1, line.size() - 2)));
}

std::string NameOf(std::string_view written) {
    return written == "@" ? "" : UnescapeRegistryText(written);
}

std::string ValueLine(std::string_view valueName, std::string_view value) {
    const std::string name =
        valueName.empty() ? "@" : EscapeRegistryText(valueName, kMarkedInNames);
    return name + "=" + EscapeRegistryText(value);
}

// The line without blanks around it, and without the end that other systems' editors leave.
std::string_view Content(std::string_view line) {
    return Trim(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
}

}  // namespace

bool RegistryText::Line::IsIn(std::string_view key) const {
    return section && EqualsIgnoringCase(*section, key);
}

bool RegistryText::Line::IsValue(std::string_view key, std::string_view valueName) const {
    return value && EqualsIgnoringCase(name, valueName) && IsIn(key);
}

RegistryText::RegistryText(std::string_view text) {
    std::vector<std::string> lines = Split(text, '\n');
    if (lines.back().empty()) {
        lines.pop_back();
    }
    for (const std::string& line : lines) {
        Append(line);
    }
}

std::string RegistryText::Text() const {
    std::string text;
    for (const Line& line : lines_) {
        text += line.text + "\n";
    }
    return text;
}

bool RegistryText::HasKey(std::string_view key) const {
    return std::any_of(lines_.begin(), lines_.end(),
                       [&](const Line& line) { return line.IsIn(key); });
}

std::optional<std::string> RegistryText::Value(std::string_view key,
                                               std::string_view valueName) const {
    for (const Line& line : lines_) {
        if (line.IsValue(key, valueName)) {
            return line.value;
        }
    }
    return std::nullopt;
}

void RegistryText::AddKey(std::string_view key) {
    if (HasKey(key)) {
        return;
    }
    if (!lines_.empty() && !Content(lines_.back().text).empty()) {
        Append("");
    }
    Append("[" + EscapeRegistryText(key) + "]");
}

void RegistryText::Set(std::string_view key, std::string_view valueName, std::string_view value) {
    AddKey(key);
    const Line written =
        Parse(ValueLine(valueName, value), std::make_shared<const std::string>(key));
    const auto old = std::find_if(lines_.begin(), lines_.end(),
                                  [&](const Line& line) { return line.IsValue(key, valueName); });
    if (old != lines_.end()) {
        *old = written;
        return;
    }
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.IsIn(key) && !Content(line.text).empty();
    });
    lines_.insert(last.base(), written);
}

bool RegistryText::EraseValue(std::string_view key, std::string_view valueName) {
    return std::erase_if(lines_, [&](const Line& line) { return line.IsValue(key, valueName); }) >
           0;
}

bool RegistryText::EraseKey(std::string_view key) {
    return std::erase_if(lines_, [&](const Line& line) { return line.IsIn(key); }) > 0;
}

RegistryText::Line RegistryText::Parse(std::string_view text, Section section) {
    Line line{std::string(text), std::move(section), {}, {}};
    const std::string_view content = Content(text);
    if (content.starts_with('[')) {
        line.section = SectionOf(content);
        return line;
    }
    const bool isComment = content.starts_with('#') || content.starts_with(';');
    const std::size_t equals = FindEquals(content);
    if (line.section && !isComment && equals != std::string_view::npos && IsUtf8(content)) {
        line.name = NameOf(Trim(content.substr(0, equals)));
        line.value = UnescapeRegistryText(Trim(content.substr(equals + 1)));
    }
    return line;
}

void RegistryText::Append(std::string_view text) {
    lines_.push_back(Parse(text, lines_.empty() ? nullptr : lines_.back().section));
}

}  // namespace horavex
