#include "lang/pack_number.h"

#include "lang/lang_test.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

struct PackNumberTest : LangTest {
    PackNumberTest() {
        WritePack("German.ini", "[timetables]\nDecimalMark=,\n");
        WritePack("English.ini", "[timetables]\nDecimalMark=.\n");
    }
};

TEST_F(PackNumberTest, FractionStandsBehindTheMarkOfThePack) {
    currentLanguage = "German";
    EXPECT_EQ(PackNumber(-1.5), "-1,5");
    EXPECT_EQ(PackNumber(12.0), "12");
    currentLanguage = "English";
    EXPECT_EQ(PackNumber(1.5), "1.5");
}

TEST_F(PackNumberTest, WholeNumbersAreGroupedAsThePackShows) {
    WritePack("English.ini", "[timetables]\nThousand=1,234\nMillion=1,234,567\n");
    WritePack("Spanish.ini", "[timetables]\nThousand=1234\nMillion=1\u202f234\u202f567\n");
    WritePack("Bengali.ini", "[timetables]\nThousand=1,234\nMillion=12,34,567\n");
    currentLanguage = "English";
    EXPECT_EQ(PackWholeNumber(0), "0");
    EXPECT_EQ(PackWholeNumber(999), "999");
    EXPECT_EQ(PackWholeNumber(1290), "1,290");
    EXPECT_EQ(PackWholeNumber(374675), "374,675");
    EXPECT_EQ(PackWholeNumber(12345678), "12,345,678");
    currentLanguage = "Spanish";
    EXPECT_EQ(PackWholeNumber(9999), "9999");
    EXPECT_EQ(PackWholeNumber(10000), "10\u202f000");
    EXPECT_EQ(PackWholeNumber(374675), "374\u202f675");
    currentLanguage = "Bengali";
    EXPECT_EQ(PackWholeNumber(374675), "3,74,675");
    currentLanguage = "None";
    EXPECT_EQ(PackWholeNumber(374675), "374675");
}

TEST_F(PackNumberTest, PackThatDoesNotSayHasThePoint) {
    currentLanguage = "None";
    EXPECT_EQ(PackDecimalMark(), '.');
}

}  // namespace
}  // namespace horavex
