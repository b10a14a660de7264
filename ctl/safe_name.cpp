#include "ctl/safe_name.h"

#include <algorithm>

#include "base/plain_text.h"
#include "base/utf8.h"

namespace horavex {

namespace {

constexpr std::size_t kDigits = 6;
constexpr std::size_t kLongestName = 100;  // bytes

bool IsSafe(char letter) {
    const bool isAscii = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                         (letter >= '0' && letter <= '9') || letter == '.' || letter == '-';
    return isAscii || static_cast<unsigned char>(letter) >= 0x80;
}

/// Bytes that are no UTF-8 may be no name elsewhere.
std::string SafeText(const std::string& name) {
    const bool isText = IsUtf8(name);
    std::string safe = isText ? WithoutControls(name) : name;
    std::ranges::replace_if(
        safe,
        [&](char letter) {
            return !IsSafe(letter) || (!isText && static_cast<unsigned char>(letter) >= 0x80);
        },
        '_');
    return std::string(Utf8Prefix(safe, kLongestName));
}

}  // namespace

std::string NumberedName(const std::string& number, const std::string& name) {
    return std::string(kDigits - std::min(kDigits, number.size()), '0') + number + "-" +
           SafeText(name);
}

}  // namespace horavex
