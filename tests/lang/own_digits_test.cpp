#include "lang/own_digits.h"

#include "lang/lang_test.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

constexpr char32_t kArabic = U'٠';
constexpr char32_t kUrdu = U'۰';
constexpr char32_t kBengali = U'০';

struct OwnDigitsTest : LangTest {
    OwnDigitsTest() {
        WritePack("Arabic.ini", "[timetables]\nDigits=٠١٢٣٤٥٦٧٨٩\n");
        WritePack("Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
        WritePack("English.ini", "[timetables]\nDigits=0123456789\n");
        WritePack("Half.ini", "[timetables]\nDigits=٠١٢\n");
    }
};

TEST(WithDigits, TurnsTheDigitsOfNumbersRoundAndNothingElse) {
    EXPECT_EQ(WithDigits("الفجر 05:12:09 ص", kArabic), "الفجر ٠٥:١٢:٠٩ ص");
    EXPECT_EQ(WithDigits("21/11/2026", kUrdu), "۲۱/۱۱/۲۰۲۶");
    EXPECT_EQ(WithDigits("15° / 18.5°", kBengali), "১৫° / ১৮.৫°");
    EXPECT_EQ(WithDigits("4,861 كم", kArabic), "٤,٨٦١ كم");
    EXPECT_EQ(WithDigits("", kArabic), "");
}

TEST(WithDigits, MakesOneSetOfSeveral) {
    EXPECT_EQ(WithDigits("٣ ۴ ৫ 6", kArabic), "٣ ٤ ٥ ٦");
    EXPECT_EQ(WithDigits("٣ ۴ ৫ 6", U'0'), "3 4 5 6");
}

TEST(WithDigits, LeavesNamesAlone) {
    EXPECT_EQ(WithDigits("في A4, 2026.pdf, v4.1 و 12", kArabic), "في A4, 2026.pdf, v4.1 و ١٢");
    EXPECT_EQ(WithDigits("1hrs 11min", kBengali), "১hrs ১১min") << "units are no names";
    EXPECT_EQ(WithDigits("UTC+2 (UTC+02:00) و 2", kArabic), "UTC+2 (UTC+02:00) و ٢");
}

TEST(WithDigits, KnowsNamesAndPathsInBracketsAndQuotationMarks) {
    EXPECT_EQ(WithDigits("(A4) «2026.pdf» [v4.1] (12) \"7\"", kUrdu),
              "(A4) «2026.pdf» [v4.1] (۱۲) \"۷\"");
    EXPECT_EQ(WithDigits("2 (/home/u/2026 3", kUrdu), "۲ (/home/u/2026 3");
    EXPECT_EQ(WithDigits("2 \"~/2026 3\"", kUrdu), "۲ \"~/2026 3\"");
    EXPECT_EQ(WithDigits("2 ~/2026 3\n~5", kUrdu), "۲ ~/2026 3\n~۵");
}

TEST(WithDigits, NumberHasTheDecimalMarkOfItsDigits) {
    EXPECT_EQ(WithDigits("18.5° -0.25، 3.", kArabic), "١٨٫٥° -٠٫٢٥، ٣.");
    EXPECT_EQ(WithDigits("5:12:3.25", kArabic), "٥:١٢:٣٫٢٥");
    EXPECT_EQ(WithDigits("(18.5)", kUrdu), "(۱۸٫۵)");
    EXPECT_EQ(WithDigits("۱۸٫۵ 18.5", kBengali), "১৮.৫ ১৮.৫");
    EXPECT_EQ(WithDigits("١٨٫٥ ۱۸٫۵", U'0'), "18.5 18.5");
    EXPECT_EQ(WithDigits("21.11.2026 5.30:10 .5", kArabic), "٢١.١١.٢٠٢٦ ٥.٣٠:١٠ .٥")
        << "dates and times";
}

TEST(WithDigits, ArabicNumbersKeepTheirOrderInALineThatRunsFromTheLeft) {
    const std::string shown = "April ٤\u200e, ٢٠٢٦ at ٠٥:١٢";
    EXPECT_EQ(WithDigits("April 4, 2026 at 05:12", kArabic), shown);
    EXPECT_EQ(WithDigits(shown, kArabic), shown);
    EXPECT_EQ(WithDigits("4، 2026 أبريل April", kArabic), "٤، ٢٠٢٦ أبريل April");
    EXPECT_EQ(WithDigits("April 4, 2026", kUrdu), "April ۴, ۲۰۲۶");
}

TEST(WithDigits, LeavesPathsAndAddressesAloneToTheEndOfTheirLine) {
    EXPECT_EQ(WithDigits("3 /home/u/Prayer times 2026 2\n3 \\lang\\7 8\r\n9", kArabic),
              "٣ /home/u/Prayer times 2026 2\n٣ \\lang\\7 8\r\n٩");
    EXPECT_EQ(WithDigits("5 https://horavex.org/2026 7", kArabic), "٥ https://horavex.org/2026 7");
}

TEST(WithDigits, LeavesATextThatIsNoUtf8) {
    EXPECT_EQ(WithDigits("12 \xC1", kArabic), "12 \xC1");
}

TEST_F(OwnDigitsTest, AreShownOnlyWhereTheyAreWantedAndThePackHasThem) {
    currentLanguage = "Arabic";
    EXPECT_EQ(InShownDigits("12"), "12");
    ShowOwnDigits(true);
    EXPECT_EQ(InShownDigits("12"), "١٢");
    ShowOwnDigits(false);
    EXPECT_EQ(InShownDigits("12"), "12");
    currentLanguage = "English";
    ShowOwnDigits(true);
    EXPECT_EQ(InShownDigits("12"), "12");
}

TEST_F(OwnDigitsTest, FollowTheLanguageThatIsChosen) {
    BindLanguageMenu();
    BuildLanguageMenu("Arabic");
    currentLanguage = "Arabic";
    ShowOwnDigits(true);
    for (const auto& [language, shown] :
         {std::pair("Bengali", "১২"), std::pair("English", "12"), std::pair("Arabic", "١٢")}) {
        for (MenuItem* entry : frmMain->mnuChangeLanguage.Entries()) {
            if (entry->Caption() == language) {
                entry->UserClick();
            }
        }
        EXPECT_EQ(InShownDigits("12"), shown);
    }
}

TEST_F(OwnDigitsTest, PackThatDoesNotNameTenDigitsHasNone) {
    currentLanguage = "Half";
    EXPECT_FALSE(PackHasOwnDigits());
    currentLanguage = "None";
    EXPECT_FALSE(PackHasOwnDigits());
    currentLanguage = "Arabic";
    EXPECT_TRUE(PackHasOwnDigits());
    EXPECT_EQ(ZeroOfPack(), kArabic);
}

TEST_F(OwnDigitsTest, WhatIsTypedInThemIsReadInPlainOnes) {
    currentLanguage = "Arabic";
    EXPECT_EQ(InPlainDigits("٣.٥"), "٣.٥") << "without them a text stays as it was typed";
    ShowOwnDigits(true);
    EXPECT_EQ(InPlainDigits("٣.٥"), "3.5");
    EXPECT_EQ(InPlainDigits("3.5"), "3.5");
    EXPECT_EQ(InPlainDigits("۳"), "3");
    EXPECT_EQ(InPlainDigits("٣٫٥"), "3.5");
    EXPECT_EQ(InPlainDigits("12 \xC1"), "12 \xC1");
}

TEST_F(OwnDigitsTest, WhatIsCopiedBackIsReadWithoutTheMarksThatKeptItsOrder) {
    currentLanguage = "Arabic";
    ShowOwnDigits(true);
    EXPECT_EQ(InPlainDigits(InShownDigits("April 4, 2026")), "April 4, 2026");
}

TEST_F(OwnDigitsTest, OpenWindowsShowTheirTextsAnewWithEveryChange) {
    int times = 0;
    InstallDigitsFollower([&times] { ++times; });
    currentLanguage = "Arabic";
    ShowOwnDigits(false);
    EXPECT_EQ(times, 0);
    ShowOwnDigits(true);
    ShowOwnDigits(true);
    EXPECT_EQ(times, 1);
    ShowOwnDigits(false);
    EXPECT_EQ(times, 2);
    InstallDigitsFollower({});
    ShowOwnDigits(true);
    EXPECT_EQ(times, 2);
}

TEST_F(OwnDigitsTest, AreNotShownByAFreshProcess) {
    currentLanguage = "Arabic";
    ShowOwnDigits(true);
    ResetProgramState();
    currentLanguage = "Arabic";
    FollowPackDigits();
    EXPECT_EQ(InShownDigits("12"), "12");
}

}  // namespace
}  // namespace horavex
