#include "timetables/center_text.h"

namespace horavex {
namespace {

TEST(CenterText, OddBlankStandsBehind) {
    EXPECT_EQ(CenterText("Asr", 6), " Asr  ");
    EXPECT_EQ(CenterText("Fajr", 6), " Fajr ");
    EXPECT_EQ(CenterText("", 3), "   ");
}

TEST(CenterText, FullCellStaysAndALongerTextIsCut) {
    EXPECT_EQ(CenterText("Maghrib", 7), "Maghrib");
    EXPECT_EQ(CenterText("Maghrib", 4), "Magh");
    EXPECT_EQ(CenterText("Maghrib", 0), "");
}

TEST(CenterText, WidthCountsCharacters) {
    EXPECT_EQ(CenterText("الفجر", 9), "  الفجر  ");
    EXPECT_EQ(CenterText("الفجر", 3), "الف");
    EXPECT_EQ(CenterText("Été", 4), "Été ");
}

}  // namespace
}  // namespace horavex
