#include "terminal/screen/glyphs.h"

#include <gmock/gmock.h>

#include <clocale>

namespace horavex {
namespace {

using testing::ElementsAre;

struct Glyphs : testing::Test {
    Glyphs() { std::setlocale(LC_CTYPE, "C.UTF-8"); }
};

TEST_F(Glyphs, TextIsCutAtItsBeginning) {
    EXPECT_EQ(WithoutColumns("December", 0), "December");
    EXPECT_EQ(WithoutColumns("December", 3), "…mber");
    EXPECT_EQ(WithoutColumns("December", 7), "…");
    EXPECT_EQ(WithoutColumns("December", 8), "");
}

TEST_F(Glyphs, WideCharactersTakeTwoColumnsAndMarksNone) {
    EXPECT_EQ(WidthOf("Mecca"), 5);
    EXPECT_EQ(WidthOf("مكة"), 3);
    EXPECT_EQ(WidthOf("日"), 2);
    EXPECT_EQ(WidthOf("e\u0301"), 1);
}

TEST_F(Glyphs, SignsOfDirectionsAndControlsAreLeftOut) {
    EXPECT_EQ(WidthOf("\u2068ab\u2069"), 2);
    EXPECT_EQ(GlyphsOf("a\tb\x1b").size(), 2u);
}

TEST_F(Glyphs, BrokenUtf8BecomesQuestionMarks) {
    EXPECT_EQ(GlyphsOf("a\xff").back().text, "?");
}

TEST_F(Glyphs, CutTextEndsWithEllipsis) {
    EXPECT_EQ(Clipped("Depression angles", 10), "Depressio…");
    EXPECT_EQ(Clipped("日本語", 4), "日…");
    EXPECT_EQ(Clipped("short", 5), "short");
    EXPECT_EQ(Clipped("short", 0), "");
}

TEST_F(Glyphs, LinesEndBetweenWordsAndLongWordsAreBroken) {
    EXPECT_THAT(Wrapped("one two three", 8), ElementsAre("one two", "three"));
    EXPECT_THAT(Wrapped("abcdefgh ij", 5), ElementsAre("abcde", "fgh", "ij"));
    EXPECT_THAT(Wrapped("a\r\n  b", 5), ElementsAre("a", "  b"));
}

TEST_F(Glyphs, ScriptsTellTheDirection) {
    EXPECT_TRUE(RunsFromRight("الصلاة"));
    EXPECT_FALSE(RunsFromRight("Gebet"));
    EXPECT_FALSE(RunsFromRight("নামাজ"));
}

}  // namespace
}  // namespace horavex
