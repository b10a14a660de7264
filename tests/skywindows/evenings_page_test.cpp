#include "skywindows/evenings_page.h"

#include "lang/language_pack.h"
#include "skywindows/sky_test_place.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;
using testing::StartsWith;

class EveningsPageTest : public testing::Test {
protected:
    EveningsPageTest() { CopyBuiltProgramFolder(platform.files); }

    MonthEvenings Month(int year, int month) const {
        const Lookout lookout{place.observer,
                              [this](Date local) { return place.clock.UniversalOf(local); },
                              [this](Date universal) { return place.clock.LocalOf(universal); }};
        return EveningsOfMonth(ErfaAlmanac(), lookout, year, month);
    }

    TestPlatform platform;
    const SkyPlace place = MeccaSky();
};

TEST_F(EveningsPageTest, HasTheFiguresOfEachEveningAndItsClassesInWords) {
    const SkyPage page = EveningsPage(Month(1447, 9), place, 2);
    EXPECT_THAT(page.heads, ElementsAre("Evening", "Sunset", "Moonset", "Lag", "Age", "Elongation",
                                        "Altitude", "Arc of vision", "Width", "Yallop", "Odeh"));
    ASSERT_THAT(page.rows, SizeIs(kMonthEvenings));
    EXPECT_THAT(page.rows[2].cells,
                ElementsAre("18 February", "06:20 PM", "07:19 PM", "59 min", "27.7 h", "13.3\u00b0",
                            "6.4\u00b0", "13.3\u00b0", "0.42\u2032", "A  easily visible",
                            "A  visible by naked eye"));
}

TEST_F(EveningsPageTest, FiguresHaveTheDecimalMarkOfThePack) {
    currentLanguage = "German";
    const auto cells = EveningsPage(Month(1447, 9), place, 2).rows[2].cells;
    EXPECT_THAT(cells[4], StartsWith("27,7"));
    EXPECT_EQ(cells[5], "13,3\u00b0");
    EXPECT_EQ(cells[8], "0,42\u2032");
}

TEST_F(EveningsPageTest, SetsOffTheEveningOfTheMap) {
    const SkyPage page = EveningsPage(Month(1447, 9), place, 1);
    EXPECT_FALSE(page.rows[0].current);
    EXPECT_TRUE(page.rows[1].current);
    EXPECT_FALSE(page.rows[2].current);
}

TEST_F(EveningsPageTest, SaysWhyNoCriterionIsAsked) {
    const auto rows = EveningsPage(Month(1447, 9), place, 2).rows;
    EXPECT_EQ(rows[0].cells[9], "before the new moon");
    EXPECT_EQ(rows[0].cells[10], "before the new moon");
    MonthEvenings month = Month(1447, 9);
    month.newMoon = month.evenings[0].crescent->sunset - 0.01;
    month.evenings[0].crescent->moonUp = false;
    EXPECT_EQ(EveningsPage(month, place, 2).rows[0].cells[9], "moon sets before the sun");
    currentLanguage = "French";
    EXPECT_EQ(EveningsPage(month, place, 2).rows[0].cells[9], "lune couchée avant le soleil");
}

TEST_F(EveningsPageTest, HasNoTimeForAMoonThatDoesNotSetAndWordsForASunThatDoesNot) {
    MonthEvenings month = Month(1447, 9);
    month.evenings[1].crescent->moonset.reset();
    month.evenings[2].crescent.reset();
    const auto rows = EveningsPage(month, place, 0).rows;
    EXPECT_EQ(rows[1].cells[2], "--:--");
    EXPECT_EQ(rows[1].cells[3], "\u2013");
    EXPECT_EQ(rows[2].cells.front(), "18 February");
    EXPECT_EQ(rows[2].cells.back(), "no sunset");
    EXPECT_THAT(rows[2].cells, SizeIs(11));
}

TEST_F(EveningsPageTest, SetsTheFirstDaysSideBySideWithTheirWeekdays) {
    const SkyPage page = FirstDaysPage(FirstDaysOf(Month(1447, 9), {1447, 9, 1}));
    EXPECT_THAT(page.heads, ElementsAre("The month begins by", "First day"));
    ASSERT_THAT(page.rows, SizeIs(6));
    EXPECT_THAT(page.rows[0].cells, ElementsAre("Yallop, naked eye", "Thursday, 19 February 2026"));
    EXPECT_THAT(page.rows[4].cells, ElementsAre("Umm al-Qura", "Wednesday, 18 February 2026"));
    EXPECT_THAT(page.rows[5].cells,
                ElementsAre("Arithmetic calendar", "Wednesday, 18 February 2026"));
}

TEST_F(EveningsPageTest, SaysThatNoEveningHasTheCrescent) {
    const FirstDays none{{}, {}, std::nullopt, DateSerial(2026, 2, 18)};
    const auto rows = FirstDaysPage(none).rows;
    EXPECT_EQ(rows[0].cells[1], "on none of these days");
    EXPECT_EQ(rows[4].cells[1], "not in the table");
}

}  // namespace
}  // namespace horavex
