#include "skywindows/qibla_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "skywindows/sky_test_place.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

struct QiblaPageTest : testing::Test {
    QiblaPageTest() { cairo.observer = {30.05, 31.25}; }

    SkyPage PageOf(int year) { return QiblaPage(ErfaAlmanac(), cairo, year, In2026(2, 18, 12, 0)); }

    TestPlatform platform;
    SkyPlace cairo = MeccaSky();
};

TEST_F(QiblaPageTest, HasTheDaysTimesOfSunAndShadow) {
    const SkyPage page = PageOf(2026);
    EXPECT_THAT(page.heads, ElementsAre("", "Time", "Sun's altitude"));
    ASSERT_THAT(page.rows, SizeIs(4));
    EXPECT_EQ(page.rows[0].cells[0], "Today the sun stands on the qibla");
    EXPECT_THAT(page.rows[0].cells[1], HasSubstr(" AM"));  // south-east of Cairo
    EXPECT_THAT(page.rows[1].cells, ElementsAre("Today a shadow points to the qibla", "--:--", ""));
}

// As published: 28 May 9:18 and 15 or 16 July 9:27 of Universal Time.
TEST_F(QiblaPageTest, HasTheTwoNoonsOfTheYearAtWhichTheSunStandsOverMecca) {
    const SkyPage page = PageOf(2026);
    EXPECT_EQ(page.rows[2].cells[1], "28 May 2026  12:18 PM");
    EXPECT_EQ(page.rows[3].cells[1], "15 July 2026  12:27 PM");
    EXPECT_THAT(PageOf(2027).rows[2].cells[1], HasSubstr("May 2027"));
}

TEST_F(QiblaPageTest, SaysWhereTheSunThatStandsOverMeccaIsBelowTheHorizon) {
    cairo.observer = {40.7, -74.0};
    EXPECT_EQ(PageOf(2026).rows.back().cells[2], "below the horizon");
}

TEST_F(QiblaPageTest, TellsTheBearing) {
    EXPECT_THAT(PageOf(2026).note, HasSubstr("The qibla is 136.2\u00b0 clockwise from north."));
}

}  // namespace
}  // namespace horavex
