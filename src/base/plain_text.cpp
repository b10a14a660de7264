#include "base/plain_text.h"

#include <cstdint>
#include <functional>

namespace horavex {

namespace {

constexpr char kDelete = '\x7f';
constexpr char kUpperLead = '\xC2';  // of U+0080 to U+00BF in UTF-8

bool IsUpperControl(std::string_view text, std::size_t at) {
    return text[at] == kUpperLead && at + 1 < text.size() && (text[at + 1] & '\xE0') == '\x80';
}

bool IsLowerControl(char c) {
    return (c >= 0 && c < ' ') || c == kDelete;
}

/// Puts what the function makes of it in the place of each control character.
std::string Replaced(std::string_view text, const std::function<std::string(char control)>& make) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (IsUpperControl(text, at)) {
            result += make(text[++at]);
        } else {
            result += IsLowerControl(text[at]) ? make(text[at]) : std::string(1, text[at]);
        }
    }
    return result;
}

std::string Escape(char control) {
    constexpr const char* kDigits = "0123456789abcdef";
    const auto code = static_cast<std::uint8_t>(control);
    return std::string("\\u00") + kDigits[code >> 4U] + kDigits[code & 15U];
}

}  // namespace

std::string WithoutControls(std::string_view text) {
    constexpr std::string_view kKept = "\t\n\f";
    return Replaced(text, [&](char control) {
        return kKept.find(control) == std::string_view::npos ? "" : std::string(1, control);
    });
}

std::string WithEscapedControls(std::string_view json) {
    return Replaced(json, Escape);
}

}  // namespace horavex
