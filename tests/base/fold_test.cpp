#include "base/fold.h"

#include <gtest/gtest.h>

#include <string>

#include "base/code_page.h"
#include "base/utf8.h"

namespace horavex {
namespace {

TEST(FoldForSearch, MakesCapitalsSmall) {
    EXPECT_EQ(FoldForSearch("New YORK"), "new york");
}

TEST(FoldForSearch, TakesAccentsOff) {
    EXPECT_EQ(FoldForSearch("ÀÁÂÃÄÅ àáâãäå"), "aaaaaa aaaaaa");
    EXPECT_EQ(FoldForSearch("ÈÉÊË èéêë"), "eeee eeee");
    EXPECT_EQ(FoldForSearch("ÌÍÎÏ ìíîï"), "iiii iiii");
    EXPECT_EQ(FoldForSearch("ÒÓÔÕÖØ òóôõöø"), "oooooo oooooo");
    EXPECT_EQ(FoldForSearch("ÙÚÛÜ ùúûü"), "uuuu uuuu");
    EXPECT_EQ(FoldForSearch("ÇÑÝŠŽŸÐ çñýšžÿð ƒ"), "cnyszyd cnyszyd f");
}

TEST(FoldForSearch, WritesLigaturesOut) {
    EXPECT_EQ(FoldForSearch("Æ æ Œ œ ß Þ þ"), "ae ae oe oe ss th th");
}

TEST(FoldForSearch, MakesCurvedQuotesStraight) {
    EXPECT_EQ(FoldForSearch("Sana’a, ‘Ibri"), "sana'a, 'ibri");
}

TEST(FoldForSearch, LeavesSignsAlone) {
    EXPECT_EQ(FoldForSearch("a×b÷c €5 – 10°"), "a×b÷c €5 – 10°");
}

TEST(FoldForSearch, LatinLettersOfAllLanguagesLoseTheirAccents) {
    EXPECT_EQ(FoldForSearch("Şişli Łódź Iğdır Ķelne Reykjavík"),
              "sisli lodz igdir kelne reykjavik");
    EXPECT_EQ(FoldForSearch("Əhmədbəyli Thành phố Ħal Ŋ ĳ"), "ehmedbeyli thanh pho hal ng ij");
    EXPECT_EQ(FoldForSearch("Bucureșți Ǎ ƛ"), "bucuresti a ƛ");
}

TEST(FoldForSearch, CyrillicGreekAndArmenianCapitalsAreSmall) {
    EXPECT_EQ(FoldForSearch("МОСКВА Київ Орёл Ўзбек"), "москва киів орел узбек");
    EXPECT_EQ(FoldForSearch("ΑΘΉΝΑ Κάιρος Ϊ"), "αθηνα καιροσ ι");
    EXPECT_EQ(FoldForSearch("ԵՐԵՎԱՆ"), "երեվան");
    EXPECT_EQ(FoldForSearch("ҚҰӘ"), "құә");
}

TEST(FoldForSearch, ArabicLettersThatAreWrittenForEachOtherAreOne) {
    EXPECT_EQ(FoldForSearch("القاهرة"), FoldForSearch("القاهره"));
    EXPECT_EQ(FoldForSearch("أبو ظبي"), FoldForSearch("ابو ظبى"));
    EXPECT_EQ(FoldForSearch("مکہ"), FoldForSearch("مكه"));
    EXPECT_EQ(FoldForSearch("آلْقَاهِـرَة"), FoldForSearch("القاهرة"));
}

TEST(FoldForSearch, PointsAndInvisibleCharactersGo) {
    EXPECT_EQ(FoldForSearch("יְרוּשָׁלַיִם"), "ירושלים");
    EXPECT_EQ(FoldForSearch("e\u0301 ki\u200Cif"), "e kiif");
}

TEST(FoldForSearch, LeavesLettersOfOtherAlphabets) {
    EXPECT_EQ(FoldForSearch("東京 मुंबई กรุงเทพ 서울 バ"), "東京 मुंबई กรุงเทพ 서울 バ");
}

TEST(FoldForSearch, CharactersOfThreeBytesThatDoFoldAreFound) {
    EXPECT_EQ(FoldForSearch("\u1DFF\u1E00\u1E9E\u1EFF\u1F00"), "\u1DFFass\u1EFF\u1F00");
    EXPECT_EQ(FoldForSearch("\u200A\u200B\u200F\u2010"), "\u200A\u2010");
    EXPECT_EQ(FoldForSearch("\u2017\u2018\u2019\u201A"), "\u2017''\u201A");
    EXPECT_EQ(FoldForSearch("\uFEFE\uFEFF\uFF00\U0001F54B"), "\uFEFE\uFF00\U0001F54B");
}

TEST(FoldForSearch, FoldedLetterFoldsToItself) {
    for (char32_t letter = 0x80; letter < 0x2100; ++letter) {
        std::string text;
        AppendUtf8(text, letter);
        const std::string folded = FoldForSearch(text);
        EXPECT_EQ(FoldForSearch(folded), folded) << std::hex << static_cast<unsigned>(letter);
    }
}

TEST(FoldForSearch, FoldedTextFoldsToItself) {
    for (int code = 0; code <= 255; ++code) {
        const Bytes one = {static_cast<std::uint8_t>(code)};
        const std::string folded = FoldForSearch(DecodeCodePage(one, CodePage::kWindows1252));
        EXPECT_EQ(FoldForSearch(folded), folded) << code;
    }
}

TEST(FoldForSearch, CapitalsFoldAsTheirSmallLetters) {
    for (int code = 0xC0; code <= 0xDE; ++code) {  // small letters stand 32 above
        const Bytes capital = {static_cast<std::uint8_t>(code)};
        const Bytes small = {static_cast<std::uint8_t>(code + 32)};
        if (code != 0xD7) {  // the signs of multiplication and division
            EXPECT_EQ(FoldForSearch(DecodeCodePage(capital, CodePage::kWindows1252)),
                      FoldForSearch(DecodeCodePage(small, CodePage::kWindows1252)));
        }
    }
}

TEST(FoldForSearch, TextThatIsNoUtf8OnlyLosesItsCapitals) {
    EXPECT_EQ(FoldForSearch("S\xE3o Paulo"), "s\xE3o paulo");
    EXPECT_EQ(FoldForSearch(""), "");
}

}  // namespace
}  // namespace horavex
