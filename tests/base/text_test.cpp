#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace horavex {
namespace {

using testing::ElementsAre;

TEST(IsDigit, IsTrueForTheTenAsciiDigitsAlone) {
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(IsDigit(static_cast<char>(code)), code >= 0x30 && code <= 0x39) << code;
    }
}

TEST(Trim, TakesBlanksAndTabsOffBothEnds) {
    EXPECT_EQ(Trim(" \t a b\tc \t"), "a b\tc");
    EXPECT_EQ(Trim("plain"), "plain");
}

TEST(Trim, NothingIsLeftOfBlanks) {
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim(" \t "), "");
}

TEST(Trim, LineEndsAndOtherSpacesStay) {
    EXPECT_EQ(Trim(" a\r\n"), "a\r\n");
    EXPECT_EQ(Trim("\u00A0a"), "\u00A0a");
}

TEST(AsciiLower, MakesCapitalsSmallAndLeavesTheRest) {
    EXPECT_EQ(AsciiLower("AZaz09@[`{"), "azaz09@[`{");
}

TEST(AsciiLower, LeavesLettersBeyondAscii) {
    EXPECT_EQ(AsciiLower("ÉCOLE Œ İ"), "École Œ İ");
}

TEST(EqualsIgnoringCase, LettersOfEitherCaseAreTheSame) {
    EXPECT_TRUE(EqualsIgnoringCase("Dat/AI.DAT", "dAT/ai.dat"));
    EXPECT_TRUE(EqualsIgnoringCase("", ""));
}

TEST(EqualsIgnoringCase, OtherCharactersDiffer) {
    EXPECT_FALSE(EqualsIgnoringCase("[", "{"));  // 32 apart, as a capital is from its small letter
    EXPECT_FALSE(EqualsIgnoringCase("@", "`"));
    EXPECT_FALSE(EqualsIgnoringCase("É", "é"));
}

TEST(EqualsIgnoringCase, ABeginningIsNotTheWhole) {
    EXPECT_FALSE(EqualsIgnoringCase("abc", "ab"));
    EXPECT_FALSE(EqualsIgnoringCase("ab", "abc"));
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_THAT(Split(",a,,b,", ','), ElementsAre("", "a", "", "b", ""));
}

TEST(Split, TextWithoutSeparatorIsOnePart) {
    EXPECT_THAT(Split("a b", ','), ElementsAre("a b"));
    EXPECT_THAT(Split("", ','), ElementsAre(""));
}

}  // namespace
}  // namespace horavex
