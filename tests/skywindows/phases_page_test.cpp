// Phases of 2026 by the U.S. Naval Observatory, three hours on.

#include "skywindows/phases_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "skywindows/sky_test_place.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;

struct PhasesPageTest : testing::Test {
    SkyPage PageOf(int year) {
        return PhasesPage(ErfaAlmanac(), MeccaSky(), year, In2026(2, 18, 15, 0));
    }

    TestPlatform platform;
};

TEST_F(PhasesPageTest, HasARowForEachTurnOfTheMoonByTheClockOfThePlace) {
    const SkyPage page = PageOf(2026);
    EXPECT_THAT(page.heads, ElementsAre("New moon", "First quarter", "Full moon", "Last quarter"));
    EXPECT_THAT(page.rows.at(0).cells,
                ElementsAre("", "", "3 January  01:03 PM", "10 January  06:48 PM"));
    EXPECT_THAT(page.rows.at(1).cells, ElementsAre("18 January  10:52 PM", "26 January  07:47 AM",
                                                   "2 February  01:09 AM", "9 February  03:43 PM"));
    EXPECT_EQ(page.rows.size(), 13U);
}

TEST_F(PhasesPageTest, RowThatRunsNowIsThePresentOneOfItsYearAlone) {
    const auto rows = PageOf(2026).rows;
    EXPECT_TRUE(rows.at(2).current);
    EXPECT_EQ(std::ranges::count(rows, true, &Grid::Row::current), 1);
    EXPECT_EQ(std::ranges::count(PageOf(2027).rows, true, &Grid::Row::current), 0);
    EXPECT_EQ(std::ranges::count(PageOf(2025).rows, true, &Grid::Row::current), 0);
}

TEST_F(PhasesPageTest, HoldsEveryYearOfTheAlmanac) {
    EXPECT_GE(PageOf(kFirstAlmanacYear).rows.size(), 12U);
    EXPECT_GE(PageOf(kLastAlmanacYear).rows.size(), 12U);
}

}  // namespace
}  // namespace horavex
