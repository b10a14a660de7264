#include "base/code_page.h"
#include "base/fold.h"
#include "base/markup.h"
#include "base/plain_text.h"
#include "base/utf8.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "lang/own_digits.h"
#include "store/city_list.h"

namespace horavex {

namespace {

void RequireSoundParts(const std::string& text, std::size_t length) {
    Require(Utf8Prefix(text, length).size() <= length, "no more bytes than wanted");
    Require(Utf8FirstCharacters(text, length).size() <= text.size(), "a beginning of the text");
    if (const auto characters = DecodeUtf8(text)) {
        std::string again;
        for (const char32_t character : *characters) {
            AppendUtf8(again, character);
        }
        Require(again == text, "characters are written as read");
        Require(Utf8Length(text) == characters->size(), "as many characters");
        Require(IsUtf8(Utf8Prefix(text, length)), "no character is split");
    }
}

void RequireBothWays(ByteView bytes) {
    for (const CodePage page : {CodePage::kWindows1252, CodePage::kWindows1256}) {
        const std::string text = DecodeCodePage(bytes, page);
        Require(IsUtf8(text), "every byte has a character");
        const auto back = EncodeCodePage(text, page);
        Require(back && std::ranges::equal(*back, bytes), "a code page goes both ways");
    }
}

}  // namespace

void FuzzTexts(ByteView bytes) {
    FuzzInput input(bytes);
    const std::size_t length = input.TakeByte();
    const std::string text = input.TakeRest();
    RequireSoundParts(text, length);
    RequireBothWays(bytes);
    EscapedForMarkup(text);
    FoldCityName(text);
    const std::string shown = WithDigits(text, U'\u0660');
    Require(!IsUtf8(text) || IsUtf8(shown), "digits leave a text UTF-8");
    Require(WithoutControls(text).find('\x1b') == std::string::npos, "no escape is left");
}

}  // namespace horavex
