#include "base/script.h"

#include <algorithm>
#include <iterator>

#include "base/utf8.h"

namespace horavex {

namespace {

/// Code points, both ends included.
struct ScriptRange {
    char32_t first;
    char32_t last;
};

// The scripts of the names of cities: Greek, Cyrillic, Armenian, Hebrew, Arabic, the scripts of
// India by turns, Thai, Georgian, Hangul, Japanese kana, Han.
constexpr ScriptRange kRanges[] = {
    {0x0370, 0x03FF}, {0x0400, 0x052F}, {0x0531, 0x058F}, {0x0590, 0x05FF}, {0x0600, 0x077F},
    {0x0900, 0x097F}, {0x0980, 0x09FF}, {0x0A00, 0x0A7F}, {0x0A80, 0x0AFF}, {0x0B80, 0x0BFF},
    {0x0C00, 0x0C7F}, {0x0C80, 0x0CFF}, {0x0D00, 0x0D7F}, {0x0E00, 0x0E7F}, {0x10A0, 0x10FF},
    {0xAC00, 0xD7AF}, {0x3040, 0x30FF}, {0x4E00, 0x9FFF}};

Script ScriptOfLetter(char32_t letter) {
    const auto* found = std::ranges::find_if(kRanges, [letter](const ScriptRange& range) {
        return letter >= range.first && letter <= range.last;
    });
    return found == std::end(kRanges) ? kLatinScript
                                      : static_cast<Script>(found - std::begin(kRanges)) + 1;
}

}  // namespace

Script ScriptOf(std::string_view text) {
    for (const char32_t letter : DecodeUtf8(text).value_or(U"")) {
        if (const Script script = ScriptOfLetter(letter); script != kLatinScript) {
            return script;
        }
    }
    return kLatinScript;
}

std::string KeptTogether(const std::string& part, std::string_view words) {
    constexpr const char* kIsolate = "\u2068";  // begins a text with a direction of its own
    constexpr const char* kEndIsolate = "\u2069";
    return ScriptOf(words) == kLatinScript ? part : kIsolate + part + kEndIsolate;
}

}  // namespace horavex
