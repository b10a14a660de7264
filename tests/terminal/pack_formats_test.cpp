#include "terminal/ports/pack_formats.h"

#include <gtest/gtest.h>

#include "lang/language_pack.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct PackFormatsTest : testing::Test {
    PackFormatsTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
    PackFormats formats;
    const Date moment = DateSerial(2026, 11, 21) + TimeSerial(17, 5, 9);
};

TEST_F(PackFormatsTest, EnglishHasTheFixedForms) {
    currentLanguage = "English";
    EXPECT_EQ(formats.MediumTime(moment), "05:05 PM");
    EXPECT_EQ(formats.LongTime(moment), "5:05:09 PM");
    EXPECT_EQ(formats.LongDate(moment), "Saturday, November 21, 2026");
    EXPECT_EQ(formats.DecimalMark(), '.');
}

TEST_F(PackFormatsTest, OtherLanguagesHaveTheirOwnAndAreFollowed) {
    currentLanguage = "English";
    EXPECT_EQ(formats.WeekdayName(moment), "Saturday");
    currentLanguage = "German";
    EXPECT_EQ(formats.MediumTime(moment), "17:05");
    EXPECT_EQ(formats.LongTime(moment), "17:05:09");
    EXPECT_EQ(formats.LongDate(moment), "Samstag, 21. November 2026");
    EXPECT_EQ(formats.WeekdayName(moment), "Samstag");
    EXPECT_EQ(formats.MonthAndYear(moment), "November 2026");
    EXPECT_EQ(formats.DecimalMark(), ',');
}

TEST_F(PackFormatsTest, HalvesOfTheDayAreToldOnRequest) {
    currentLanguage = "German";
    EXPECT_EQ(formats.TwelveHourTime(moment), "05:05 PM");
}

}  // namespace
}  // namespace horavex
