#include "lang/profile_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace horavex {
namespace {

using testing::Eq;
using testing::Optional;

std::optional<std::string> Find(std::string_view file, std::string_view section = "msg",
                                std::string_view key = "1") {
    const auto value = FindProfileValue(file, section, key);
    return value ? std::optional(std::string(*value)) : std::nullopt;
}

TEST(FindProfileValue, GivesTheValueOfAKeyInItsSection) {
    constexpr const char* kFile = "[other]\n1=wrong\n[msg]\n2=wrong\n1=Hello there\n";
    EXPECT_THAT(Find(kFile), Optional(Eq("Hello there")));
}

TEST(FindProfileValue, NothingWhereFileSectionOrKeyIsMissing) {
    EXPECT_EQ(Find(""), std::nullopt);
    EXPECT_EQ(Find("[other]\n1=x"), std::nullopt);
    EXPECT_EQ(Find("[msg]\n2=x"), std::nullopt);
    EXPECT_EQ(Find("1=x\n[msg]"), std::nullopt);
    EXPECT_EQ(Find("[msg]\n[other]\n1=x"), std::nullopt);
}

TEST(FindProfileValue, EmptyValueIsAValue) {
    EXPECT_THAT(Find("[msg]\n1="), Optional(Eq("")));
    EXPECT_THAT(Find("[msg]\n1= \t\n"), Optional(Eq("")));
    EXPECT_THAT(Find("[msg]\n1=\"\""), Optional(Eq("")));
}

TEST(FindProfileValue, CaseOfSectionAndKeyDoesNotMatter) {
    EXPECT_THAT(Find("[MSG]\nfAJR=x", "msg", "Fajr"), Optional(Eq("x")));
    EXPECT_THAT(Find("[msg]\nfajr=x", "Msg", "FAJR"), Optional(Eq("x")));
}

TEST(FindProfileValue, CaseOfLettersBeyondAsciiDoes) {
    EXPECT_EQ(Find("[msg]\né=x", "msg", "É"), std::nullopt);
}

TEST(FindProfileValue, FirstKeyWins) {
    EXPECT_THAT(Find("[msg]\n1=first\n1=second"), Optional(Eq("first")));
}

TEST(FindProfileValue, FirstSectionWinsEvenWithoutTheKey) {
    EXPECT_THAT(Find("[msg]\n1=first\n[msg]\n1=second"), Optional(Eq("first")));
    EXPECT_EQ(Find("[msg]\n2=x\n[msg]\n1=second"), std::nullopt);
}

TEST(FindProfileValue, BlanksAndTabsAroundEverythingAreDropped) {
    EXPECT_THAT(Find(" \t[ \tmsg \t] \t\n \t1 \t= \ta  b\t \n"), Optional(Eq("a  b")));
}

TEST(FindProfileValue, BlanksInsideNamesCount) {
    EXPECT_THAT(Find("[my msg]\na key=x", "my msg", "a key"), Optional(Eq("x")));
    EXPECT_EQ(Find("[my  msg]\na key=x", "my msg", "a key"), std::nullopt);
}

TEST(FindProfileValue, OnePairOfEnclosingQuotesIsTakenOff) {
    EXPECT_THAT(Find("[msg]\n1=\"  a \"\n"), Optional(Eq("  a ")));
    EXPECT_THAT(Find("[msg]\n1='  a '"), Optional(Eq("  a ")));
    EXPECT_THAT(Find("[msg]\n1=\"\"a\"\""), Optional(Eq("\"a\"")));
    EXPECT_THAT(Find("[msg]\n1='\"a\"'"), Optional(Eq("\"a\"")));
}

TEST(FindProfileValue, QuotesThatDoNotEncloseStay) {
    EXPECT_THAT(Find("[msg]\n1=\""), Optional(Eq("\"")));
    EXPECT_THAT(Find("[msg]\n1='"), Optional(Eq("'")));
    EXPECT_THAT(Find("[msg]\n1=\"a"), Optional(Eq("\"a")));
    EXPECT_THAT(Find("[msg]\n1=a\""), Optional(Eq("a\"")));
    EXPECT_THAT(Find("[msg]\n1=\"a'"), Optional(Eq("\"a'")));
    EXPECT_THAT(Find("[msg]\n1=Rabi'Awal"), Optional(Eq("Rabi'Awal")));
    EXPECT_THAT(Find("[msg]\n1=\"a\" b"), Optional(Eq("\"a\" b")));
}

TEST(FindProfileValue, QuotesInsideQuotesStay) {
    EXPECT_THAT(Find("[msg]\n1=\"a\"b\""), Optional(Eq("a\"b")));
}

TEST(FindProfileValue, LinesThatBeginWithASemicolonAreComments) {
    EXPECT_EQ(Find("[msg]\n;1=x"), std::nullopt);
    EXPECT_EQ(Find("[msg]\n \t;1=x"), std::nullopt);
    EXPECT_EQ(Find("[msg]\n;1=x", "msg", ";1"), std::nullopt);
    EXPECT_EQ(Find(";[msg]\n1=x"), std::nullopt);
}

TEST(FindProfileValue, SemicolonInsideAValueIsPartOfIt) {
    EXPECT_THAT(Find("[msg]\n1=a ; b"), Optional(Eq("a ; b")));
}

TEST(FindProfileValue, ValueKeepsFurtherEqualSigns) {
    EXPECT_THAT(Find("[msg]\n1=a=b= c"), Optional(Eq("a=b= c")));
    EXPECT_THAT(Find("[msg]\n1==b"), Optional(Eq("=b")));
}

TEST(FindProfileValue, LineWithoutAnEqualSignIsNoKey) {
    EXPECT_EQ(Find("[msg]\n1\n"), std::nullopt);
    EXPECT_THAT(Find("[msg]\n1\n1=x"), Optional(Eq("x")));
}

TEST(FindProfileValue, EveryKindOfLineEndWorks) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        const std::string file = "[a]" + end + "1=wrong" + end + end + "[msg]" + end + "1=x" + end;
        EXPECT_THAT(Find(file), Optional(Eq("x")));
        EXPECT_THAT(Find(file + "2=last", "msg", "2"), Optional(Eq("last")));
    }
}

TEST(FindProfileValue, ByteOrderMarkIsPassedOver) {
    EXPECT_THAT(Find("\xEF\xBB\xBF[msg]\n1=x"), Optional(Eq("x")));
}

TEST(FindProfileValue, ByteOrderMarkElsewhereIsText) {
    EXPECT_EQ(Find("\n\xEF\xBB\xBF[msg]\n1=x"), std::nullopt);
    EXPECT_THAT(Find("[msg]\n1=\xEF\xBB\xBF"), Optional(Eq("\xEF\xBB\xBF")));
}

TEST(FindProfileValue, WhatFollowsASectionsBracketDoesNotMatter) {
    EXPECT_THAT(Find("[msg] ; messages\n1=x"), Optional(Eq("x")));
}

TEST(FindProfileValue, SectionWithoutItsBracketIsNone) {
    EXPECT_EQ(Find("[msg\n1=x"), std::nullopt);
    EXPECT_THAT(Find("[msg]\n[other\n1=x"), Optional(Eq("x")));
}

TEST(FindProfileValue, BracketsInValuesOpenNoSection) {
    EXPECT_EQ(Find("[a]\nb=[msg]\n1=x"), std::nullopt);
    EXPECT_THAT(Find("[msg]\n1=[x]"), Optional(Eq("[x]")));
}

TEST(FindProfileValue, EverySingleLineFileOfRandomCharactersIsReadWithoutHarm) {
    std::mt19937 random(1);  // a fixed seed
    constexpr std::string_view kAlphabet("[]=;\"' \t\r\nmsg1\0\xFF\xEF\xBB\xBF", 19);
    for (int run = 0; run < 20000; ++run) {
        std::string file(random() % 40, ' ');
        for (char& c : file) {
            c = kAlphabet[random() % kAlphabet.size()];
        }
        const auto value = FindProfileValue(file, "msg", "1");
        if (value) {
            EXPECT_NE(file.find(*value), std::string::npos);
            EXPECT_EQ(value->find_first_of("\r\n"), std::string::npos);
        }
        for (const ProfileEntry& entry : ListProfileEntries(file)) {
            EXPECT_EQ(entry.key.find('='), std::string::npos);
        }
    }
}

TEST(ProfileIndex, FindsEveryValueOfAFileWithManySections) {
    std::string file = "stray=0\n";
    for (int n = 0; n < 300; ++n) {
        file += "[s" + std::to_string(n * 7 % 100) + "]\nKey" + std::to_string(n % 3) + "=" +
                std::to_string(n) + "\n";
    }
    const ProfileIndex index(file);
    for (int n = 0; n < 100; ++n) {
        const std::string section = "S" + std::to_string(n * 7 % 100);
        EXPECT_THAT(index.Find(section, "kEY" + std::to_string(n % 3)),
                    Optional(Eq(std::to_string(n))));
        EXPECT_EQ(index.Find(section, "key" + std::to_string((n + 1) % 3)), std::nullopt);
    }
    EXPECT_EQ(index.Find("", "stray"), std::nullopt);
    EXPECT_EQ(ProfileIndex().Find("s1", "key1"), std::nullopt);
}

TEST(ListProfileEntries, GivesEveryKeyWithItsSectionInTheOrderOfTheFile) {
    const auto entries = ListProfileEntries(
        "\xEF\xBB\xBF"
        "stray=1\r\n[msg]\r\n;x=1\r\n 1 = a\r\nno key\r\n1=b\r\n[ Azan ]\r\n0=\"c\"");
    std::string listed;
    for (const ProfileEntry& entry : entries) {
        listed += "[" + entry.section + "]" + entry.key + " ";
    }
    EXPECT_EQ(listed, "[]stray [msg]1 [msg]1 [Azan]0 ");
}

}  // namespace
}  // namespace horavex
