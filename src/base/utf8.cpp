#include "base/utf8.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr char32_t kHighest = 0x10FFFF;

/// Length of the sequence that a lead byte opens, 0 for a byte that opens none.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Smallest code point that needs a sequence of this length; anything below is overlong.
char32_t SmallestOfLength(std::size_t length) {
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return kSmallest[length];
}

bool IsSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

}  // namespace

void AppendUtf8(std::string& text, char32_t codePoint) {
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80U | (codePoint >> shift & 0x3FU));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0U | codePoint >> 6);
        tail(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0U | codePoint >> 12);
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0U | codePoint >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

std::optional<char32_t> TakeCodePoint(std::string_view& rest) {
    const auto lead = static_cast<unsigned char>(rest.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > rest.size()) {
        return std::nullopt;
    }
    char32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(rest[i])) {
            return std::nullopt;
        }
        codePoint = codePoint << 6 | (static_cast<unsigned char>(rest[i]) & 0x3FU);
    }
    if (codePoint < SmallestOfLength(length) || codePoint > kHighest || IsSurrogate(codePoint)) {
        return std::nullopt;
    }
    rest.remove_prefix(length);
    return codePoint;
}

std::optional<std::u32string> DecodeUtf8(std::string_view text) {
    std::u32string codePoints;
    codePoints.reserve(text.size());
    while (!text.empty()) {
        const auto codePoint = TakeCodePoint(text);
        if (!codePoint) {
            return std::nullopt;
        }
        codePoints.push_back(*codePoint);
    }
    return codePoints;
}

bool IsUtf8(std::string_view text) {
    return DecodeUtf8(text).has_value();
}

std::size_t Utf8Length(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::string_view Utf8FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (std::size_t begun = 0; end < text.size(); ++end) {
        begun += IsContinuation(text[end]) ? 0U : 1U;
        if (begun > count) {
            break;
        }
    }
    return text.substr(0, end);
}

std::string_view Utf8Prefix(std::string_view text, std::size_t maxBytes) {
    if (text.size() <= maxBytes) {
        return text;
    }
    std::size_t end = maxBytes;
    while (end > 0 && IsContinuation(text[end])) {
        --end;
    }
    return text.substr(0, end);
}

}  // namespace horavex
