#include "desktop/ports/pack_locale.h"

#include "lang/language_pack.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct PackLocaleTest : testing::Test {
    PackLocaleTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
};

TEST_F(PackLocaleTest, IsThatOfTheCurrentPack) {
    currentLanguage = "Arabic";
    EXPECT_EQ(PackLocale()->language(), QLocale::Arabic);
    currentLanguage = "Spanish";
    EXPECT_EQ(PackLocale()->language(), QLocale::Spanish);
}

TEST_F(PackLocaleTest, IsNothingWithoutAPackOrACodeThatTheToolkitKnows) {
    currentLanguage = "Missing";
    EXPECT_EQ(PackLocale(), std::nullopt);
    platform.files.WriteWhole("/program/lang/Own.ini", BytesOf("[timetables]\nCode=qqq\n"));
    currentLanguage = "Own";
    EXPECT_EQ(PackLocale(), std::nullopt);
}

}  // namespace
}  // namespace horavex
