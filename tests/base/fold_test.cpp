#include "base/fold.h"

#include <gtest/gtest.h>

#include <string>

#include "base/code_page.h"

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

TEST(FoldForSearch, LeavesLettersOfOtherAlphabets) {
    EXPECT_EQ(FoldForSearch("مكة Şişli Ω"), "مكة Şişli Ω");
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
