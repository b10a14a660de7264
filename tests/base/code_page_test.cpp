#include "base/code_page.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>
#include <string>

#include "base/utf8.h"

namespace horavex {
namespace {

Bytes Range(int first, int last) {
    Bytes bytes(static_cast<std::size_t>(last - first + 1));
    std::iota(bytes.begin(), bytes.end(), static_cast<std::uint8_t>(first));
    return bytes;
}

class BothPages : public testing::TestWithParam<CodePage> {};

INSTANTIATE_TEST_SUITE_P(CodePage, BothPages,
                         testing::Values(CodePage::kWindows1252, CodePage::kWindows1256),
                         [](const auto& page) {
                             return page.param == CodePage::kWindows1252 ? "Windows1252"
                                                                         : "Windows1256";
                         });

TEST_P(BothPages, EveryByteComesBack) {
    const Bytes all = Range(0x00, 0xFF);
    EXPECT_EQ(EncodeCodePage(DecodeCodePage(all, GetParam()), GetParam()), all);
}

TEST_P(BothPages, EveryByteIsOneCharacter) {
    const auto codePoints = DecodeUtf8(DecodeCodePage(Range(0x00, 0xFF), GetParam()));
    ASSERT_TRUE(codePoints.has_value());
    EXPECT_EQ(codePoints->size(), 256U);
}

TEST_P(BothPages, LowerHalfIsAscii) {
    const Bytes ascii = Range(0x00, 0x7F);
    EXPECT_EQ(DecodeCodePage(ascii, GetParam()), StringOf(ascii));
    EXPECT_EQ(EncodeCodePage(StringOf(ascii), GetParam()), ascii);
}

TEST_P(BothPages, NothingIsAnEmptyText) {
    EXPECT_EQ(DecodeCodePage({}, GetParam()), "");
    EXPECT_EQ(EncodeCodePage("", GetParam()), Bytes{});
}

TEST_P(BothPages, MalformedUtf8HasNoBytes) {
    EXPECT_EQ(EncodeCodePage("caf\xE9", GetParam()), std::nullopt);
    EXPECT_EQ(EncodeCodePage("\xC0\x80", GetParam()), std::nullopt);
    EXPECT_EQ(EncodeCodePage("\xE2\x82", GetParam()), std::nullopt);
}

TEST_P(BothPages, CharacterBeyondThePageHasNoBytes) {
    EXPECT_EQ(EncodeCodePage("a中b", GetParam()), std::nullopt);
    EXPECT_EQ(EncodeCodePage("😀", GetParam()), std::nullopt);
    EXPECT_EQ(EncodeCodePage("\u0100", GetParam()), std::nullopt);
}

TEST_P(BothPages, CharacterIsNotTakenForOneWithTheSameLowBits) {
    EXPECT_EQ(EncodeCodePage("\U000120AC", GetParam()), std::nullopt);  // U+20AC is the euro
    EXPECT_EQ(EncodeCodePage("\U00010041", GetParam()), std::nullopt);  // U+0041 is A
}

// The rows below are the upper halves of the Unicode consortium's CP1252.TXT and CP1256.TXT.

TEST(Windows1252, PunctuationRowsAreThoseOfTheTable) {
    EXPECT_EQ(DecodeCodePage(Range(0x82, 0x8C), CodePage::kWindows1252), "‚ƒ„…†‡ˆ‰Š‹Œ");
    EXPECT_EQ(DecodeCodePage(Range(0x91, 0x9C), CodePage::kWindows1252), "‘’“”•–—˜™š›œ");
    EXPECT_EQ(DecodeCodePage(Bytes{0x80, 0x8E, 0x9E, 0x9F}, CodePage::kWindows1252), "€ŽžŸ");
}

TEST(Windows1252, BytesFromA0OnAreTheCodePointsOfTheirNumber) {
    const auto codePoints = DecodeUtf8(DecodeCodePage(Range(0xA0, 0xFF), CodePage::kWindows1252));
    ASSERT_TRUE(codePoints.has_value());
    for (std::size_t i = 0; i < codePoints->size(); ++i) {
        EXPECT_EQ(codePoints->at(i), 0xA0 + i);
    }
}

TEST(Windows1252, FreeCodesAreControlCharactersOfTheirNumber) {
    EXPECT_EQ(DecodeCodePage(Bytes{0x81, 0x8D, 0x8F, 0x90, 0x9D}, CodePage::kWindows1252),
              "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, WesternNamesAreEncoded) {
    EXPECT_EQ(EncodeCodePage("€Œéßÿ", CodePage::kWindows1252),
              (Bytes{0x80, 0x8C, 0xE9, 0xDF, 0xFF}));
}

TEST(Windows1252, HasNoArabic) {
    EXPECT_EQ(EncodeCodePage("ة", CodePage::kWindows1252), std::nullopt);
    EXPECT_EQ(EncodeCodePage("،", CodePage::kWindows1252), std::nullopt);
}

TEST(Windows1252, CodesThatItNamesAnewAreNotControlCharacters) {
    EXPECT_EQ(EncodeCodePage("\u0080", CodePage::kWindows1252), std::nullopt);
    EXPECT_EQ(EncodeCodePage("\u009F", CodePage::kWindows1252), std::nullopt);
}

TEST(Windows1256, PunctuationRowsAreThoseOfTheTable) {
    EXPECT_EQ(DecodeCodePage(Range(0x80, 0x8F), CodePage::kWindows1256), "€پ‚ƒ„…†‡ˆ‰ٹ‹Œچژڈ");
    EXPECT_EQ(DecodeCodePage(Range(0x90, 0x9F), CodePage::kWindows1256),
              "گ‘’“”•–—ک™ڑ›œ\u200C\u200Dں");
    EXPECT_EQ(DecodeCodePage(Range(0xA0, 0xAF), CodePage::kWindows1256),
              "\u00A0،¢£¤¥¦§¨©ھ«¬\u00AD®¯");
    EXPECT_EQ(DecodeCodePage(Range(0xB0, 0xBF), CodePage::kWindows1256), "°±²³´µ¶·¸¹؛»¼½¾؟");
}

TEST(Windows1256, LetterRowsAreThoseOfTheTable) {
    EXPECT_EQ(DecodeCodePage(Range(0xC0, 0xCF), CodePage::kWindows1256), "ہءآأؤإئابةتثجحخد");
    EXPECT_EQ(DecodeCodePage(Range(0xD0, 0xDF), CodePage::kWindows1256), "ذرزسشصض×طظعغـفقك");
    EXPECT_EQ(DecodeCodePage(Range(0xE0, 0xEF), CodePage::kWindows1256), "àلâمنهوçèéêëىيîï");
}

TEST(Windows1256, VowelSignsAndMarksAreThoseOfTheTable) {
    EXPECT_EQ(DecodeCodePage(Range(0xF0, 0xFF), CodePage::kWindows1256),
              "\u064B\u064C\u064D\u064Eô\u064F\u0650÷\u0651ù\u0652ûü\u200E\u200Fے");
}

TEST(Windows1256, ArabicNamesAreEncoded) {
    EXPECT_EQ(EncodeCodePage("مكة", CodePage::kWindows1256), (Bytes{0xE3, 0xDF, 0xC9}));
    EXPECT_EQ(EncodeCodePage("پ", CodePage::kWindows1256), (Bytes{0x81}));
}

TEST(Windows1256, HasThreeOtherYehsButNotTheFarsiOne) {
    EXPECT_EQ(EncodeCodePage("\u0649\u064A\u06D2", CodePage::kWindows1256),
              (Bytes{0xEC, 0xED, 0xFF}));
    EXPECT_EQ(EncodeCodePage("\u06CC", CodePage::kWindows1256), std::nullopt);
}

TEST(Windows1256, LacksWesternLettersThatGaveWayToArabic) {
    EXPECT_EQ(EncodeCodePage("ß", CodePage::kWindows1256), std::nullopt);
    EXPECT_EQ(EncodeCodePage("ÿ", CodePage::kWindows1256), std::nullopt);
    EXPECT_EQ(EncodeCodePage("É", CodePage::kWindows1256), std::nullopt);
    EXPECT_EQ(EncodeCodePage("é", CodePage::kWindows1256), (Bytes{0xE9}));
}

}  // namespace
}  // namespace horavex
