#include "lang/language_pack.h"

#include <optional>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/program_state.h"
#include "base/text.h"
#include "base/utf8.h"
#include "lang/profile_file.h"
#include "platform/platform.h"

namespace horavex {

std::string currentLanguage;

namespace {

const ProgramStateReset reset([] { currentLanguage.clear(); });

constexpr std::size_t kMessageBuffer = 1024;  // bytes, with the closing zero

CodePage EightBitPage(const std::string& language) {
    return AsciiLower(language) == "arabic" ? CodePage::kWindows1256 : CodePage::kWindows1252;
}

/// A missing or unreadable pack is as good as an empty one.
std::string ReadPack(const std::string& language) {
    try {
        return StringOf(Ports().programFolder.ReadWhole(LanguagePackPath(language)));
    } catch (const FileFault&) {
        return {};
    }
}

std::string CutAndDecode(std::string_view value, std::size_t maxBytes, bool utf8) {
    if (utf8) {
        return std::string(Utf8Prefix(value, maxBytes));
    }
    return DecodeCodePage(BytesOf(std::string(value.substr(0, maxBytes))),
                          EightBitPage(currentLanguage));
}

}  // namespace

std::string LanguagePackPath(const std::string& language) {
    return "\\lang\\" + language + ".ini";
}

std::string ReadPackString(const std::string& section, const std::string& key,
                           const std::string& defaultText, std::size_t bufferSize) {
    const std::string pack = ReadPack(currentLanguage);
    const auto value = FindProfileValue(pack, section, key);
    return value ? CutAndDecode(*value, bufferSize - 1, IsUtf8(pack)) : defaultText;
}

std::string GetLangString(const std::string& section, const std::string& key,
                          const std::string& defaultText) {
    return ReadPackString(section, key, defaultText, kMessageBuffer);
}

}  // namespace horavex
