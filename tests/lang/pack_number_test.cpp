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

TEST_F(PackNumberTest, PackThatDoesNotSayHasThePoint) {
    currentLanguage = "None";
    EXPECT_EQ(PackDecimalMark(), '.');
}

}  // namespace
}  // namespace horavex
