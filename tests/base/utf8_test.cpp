#include "base/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace horavex {
namespace {

std::string Utf8Of(char32_t codePoint) {
    std::string text;
    AppendUtf8(text, codePoint);
    return text;
}

TEST(AppendUtf8, EachLengthBeginsAndEndsAtItsCodePoints) {
    EXPECT_EQ(Utf8Of(0x00), std::string(1, '\0'));
    EXPECT_EQ(Utf8Of(0x7F), "\x7F");
    EXPECT_EQ(Utf8Of(0x80), "\xC2\x80");
    EXPECT_EQ(Utf8Of(0x7FF), "\xDF\xBF");
    EXPECT_EQ(Utf8Of(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(Utf8Of(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(Utf8Of(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf8Of(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(AppendUtf8, KeepsWhatTheTextHolds) {
    std::string text = "ab";
    AppendUtf8(text, U'€');
    EXPECT_EQ(text, "ab\xE2\x82\xAC");
}

TEST(DecodeUtf8, GivesTheCodePointsInOrder) {
    EXPECT_EQ(DecodeUtf8("aéس€😀"), U"aéس€😀");
    EXPECT_EQ(DecodeUtf8(""), U"");
}

TEST(DecodeUtf8, TakesBackEveryCodePoint) {
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (codePoint == 0xD800) {
            codePoint = 0xE000;  // surrogates have no UTF-8
        }
        ASSERT_EQ(DecodeUtf8(Utf8Of(codePoint)), std::u32string(1, codePoint));
    }
}

TEST(IsUtf8, OverlongFormsAreMalformed) {
    EXPECT_FALSE(IsUtf8("\xC0\x80"));
    EXPECT_FALSE(IsUtf8("\xC1\xBF"));
    EXPECT_FALSE(IsUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(IsUtf8("\xF0\x8F\xBF\xBF"));
}

TEST(IsUtf8, SurrogatesAreMalformed) {
    EXPECT_TRUE(IsUtf8("\xED\x9F\xBF"));   // U+D7FF, the last before them
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));  // U+D800
    EXPECT_FALSE(IsUtf8("\xED\xBF\xBF"));  // U+DFFF
    EXPECT_TRUE(IsUtf8("\xEE\x80\x80"));   // U+E000, the first after them
}

TEST(IsUtf8, NothingLiesBeyondTheLastCodePoint) {
    EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));  // U+110000
    EXPECT_FALSE(IsUtf8("\xF5\x80\x80\x80"));
    EXPECT_FALSE(IsUtf8("\xF8\x88\x80\x80\x80"));
    EXPECT_FALSE(IsUtf8("\xFE"));
    EXPECT_FALSE(IsUtf8("\xFF"));
}

TEST(IsUtf8, TruncatedCharactersAreMalformed) {
    for (const std::string whole : {"é", "€", "😀"}) {
        for (std::size_t length = 1; length < whole.size(); ++length) {
            const std::string cut(whole.substr(0, length));
            for (const auto& [before, behind] : {std::pair("a", ""), {"", "aaa"}, {"", "é"}}) {
                EXPECT_FALSE(IsUtf8(before + cut + behind)) << whole << length;
            }
        }
    }
}

TEST(IsUtf8, StrayContinuationIsMalformed) {
    EXPECT_FALSE(IsUtf8("\x80"));
    EXPECT_FALSE(IsUtf8("a\xBF"));
    EXPECT_FALSE(IsUtf8("é\xA9"));
}

TEST(IsUtf8, WellFormedBeginningDoesNotSaveTheText) {
    EXPECT_FALSE(IsUtf8("well formed \xE9t\xE9"));
    EXPECT_FALSE(DecodeUtf8("abc\xFF").has_value());
}

TEST(Utf8Length, CountsCharactersAndNotBytes) {
    EXPECT_EQ(Utf8Length(""), 0U);
    EXPECT_EQ(Utf8Length("Asr"), 3U);
    EXPECT_EQ(Utf8Length("العصر"), 5U);
    EXPECT_EQ(Utf8Length("é\x80x"), 2U) << "a stray byte hangs on";
}

TEST(Utf8FirstCharacters, EndsBehindAWholeCharacter) {
    EXPECT_EQ(Utf8FirstCharacters("العصر", 2), "ال");
    EXPECT_EQ(Utf8FirstCharacters("aé", 2), "aé");
    EXPECT_EQ(Utf8FirstCharacters("aé", 9), "aé");
    EXPECT_EQ(Utf8FirstCharacters("aé", 0), "");
}

TEST(Utf8Prefix, TakesTheWholeTextWhenItFits) {
    EXPECT_EQ(Utf8Prefix("aé", 3), "aé");
    EXPECT_EQ(Utf8Prefix("aé", 100), "aé");
}

TEST(Utf8Prefix, DoesNotLookBehindTheText) {
    const std::string_view field = std::string_view("aé\xA9").substr(0, 3);
    EXPECT_EQ(Utf8Prefix(field, 3), "aé");
}

TEST(Utf8Prefix, LeavesOutACharacterThatDoesNotFitWhole) {
    EXPECT_EQ(Utf8Prefix("aé", 2), "a");
    EXPECT_EQ(Utf8Prefix("€", 2), "");
    EXPECT_EQ(Utf8Prefix("😀", 3), "");
    EXPECT_EQ(Utf8Prefix("😀a", 4), "😀");
}

TEST(Utf8Prefix, NoBytesAreNoText) {
    EXPECT_EQ(Utf8Prefix("aé", 0), "");
    EXPECT_EQ(Utf8Prefix("", 0), "");
}

TEST(Utf8Prefix, IsAlwaysWellFormedAndAsLongAsCanBe) {
    const std::string text = "aé€😀سb";
    for (std::size_t limit = 0; limit <= text.size(); ++limit) {
        const std::string_view prefix = Utf8Prefix(text, limit);
        EXPECT_TRUE(IsUtf8(prefix)) << limit;
        EXPECT_TRUE(text.starts_with(prefix)) << limit;
        for (std::size_t longer = prefix.size() + 1; longer <= limit; ++longer) {
            EXPECT_FALSE(IsUtf8(text.substr(0, longer))) << limit;
        }
    }
}

}  // namespace
}  // namespace horavex
