#include "linux/registry_escape.h"

#include <random>

namespace horavex {
namespace {

TEST(RegistryEscape, PlainTextStaysAsItIs) {
    for (const char* text :
         {"", "Arabic", "/home/me/my athan.mp3", "18.5", "a=b;c#d[e]", "\xD8\xA7\xD9\x84"}) {
        EXPECT_EQ(EscapeRegistryText(text), text);
        EXPECT_EQ(UnescapeRegistryText(text), text);
    }
}

TEST(RegistryEscape, WhatALineCannotHoldGetsABackslash) {
    EXPECT_EQ(EscapeRegistryText("C:\\new\\s"), "C:\\\\new\\\\s");
    EXPECT_EQ(EscapeRegistryText("two\nlines\r\n"), "two\\nlines\\r\\n");
    EXPECT_EQ(EscapeRegistryText("  x\t"), "\\s x\\t");
    EXPECT_EQ(EscapeRegistryText(" "), "\\s");
    EXPECT_EQ(EscapeRegistryText("a \t b"), "a \t b");
}

TEST(RegistryEscape, MarkedCharactersGetABackslash) {
    EXPECT_EQ(EscapeRegistryText("@a=[b]#;", kMarkedInNames), "\\@a\\=\\[b]\\#\\;");
}

TEST(RegistryEscape, BackslashBeforeAnythingElseStandsForItself) {
    EXPECT_EQ(UnescapeRegistryText("Software\\Horavex\\Settings"), "Software\\Horavex\\Settings");
    EXPECT_EQ(UnescapeRegistryText("end\\"), "end\\");
}

TEST(RegistryEscape, EveryTextComesBackFromOneLineWithoutBlanksAtItsEnds) {
    constexpr std::string_view kAlphabet = "\\\n\r \tnrst=@[]#;aZ";
    std::minstd_rand random(1);
    for (int n = 0; n < 20000; ++n) {
        std::string text(random() % 9, '\0');
        for (char& c : text) {
            c = kAlphabet[random() % kAlphabet.size()];
        }
        for (const std::string_view marked : {std::string_view(), kMarkedInNames}) {
            const std::string line = EscapeRegistryText(text, marked);
            ASSERT_EQ(UnescapeRegistryText(line), text);
            ASSERT_EQ(line.find_first_of("\r\n"), std::string::npos);
            ASSERT_NE(line.find_first_of(" \t"), 0U);
            ASSERT_TRUE(!line.ends_with(' ') && !line.ends_with('\t'));
        }
    }
}

}  // namespace
}  // namespace horavex
