#include "base/script.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(ScriptOf, LatinWithAccentsDigitsAndNothing) {
    for (const char* text : {"", "Cairo", "München", "Łódź", "123", "\xff"}) {
        EXPECT_EQ(ScriptOf(text), kLatinScript) << text;
    }
}

TEST(ScriptOf, IsOneForAllTextsOfAScript) {
    EXPECT_EQ(ScriptOf("القاهرة"), ScriptOf("Title: مواقيت"));
    EXPECT_EQ(ScriptOf("Москва"), ScriptOf("Київ"));
    EXPECT_NE(ScriptOf("Москва"), ScriptOf("القاهرة"));
    EXPECT_NE(ScriptOf("東京"), kLatinScript);
}

TEST(KeptTogether, MarksOffWhatStandsAmongWordsOfAnotherScript) {
    EXPECT_EQ(KeptTogether("UTC+2", "Clock"), "UTC+2");
    EXPECT_EQ(KeptTogether("UTC+2", "ساعة"), "\u2068UTC+2\u2069");
}

}  // namespace
}  // namespace horavex
