// Instants of PyEphem 4.1.4, upper limb with 34 minutes of arc of refraction.

#include "skywindows/today_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "skywindows/sky_test_place.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct TodayPageTest : testing::Test {
    SkyPage PageAt(Date now, const SkyPlace& place = MeccaSky()) {
        return TodayPage(ErfaAlmanac(), place, now);
    }

    TestPlatform platform;
};

TEST_F(TodayPageTest, HasRiseHighestPointAndSetByTheClockOfThePlace) {
    const SkyPage page = PageAt(In2026(2, 18, 15, 0));
    EXPECT_THAT(page.heads, ElementsAre("", "Rise or dawn", "Highest point", "Set or dusk"));
    EXPECT_THAT(page.rows.at(0).cells, ElementsAre("Sun", "06:49 AM", "12:35 PM", "06:20 PM"));
    EXPECT_THAT(page.rows.at(1).cells, ElementsAre("Moon", "07:21 AM", "01:17 PM", "07:19 PM"));
}

TEST_F(TodayPageTest, HasTheThreeTwilights) {
    const SkyPage page = PageAt(In2026(2, 18, 15, 0));
    EXPECT_THAT(page.rows.at(2).cells,
                ElementsAre("Civil twilight, 6\u00b0", "06:27 AM", "", "06:43 PM"));
    EXPECT_THAT(page.rows.at(3).cells,
                ElementsAre("Nautical twilight, 12\u00b0", "06:01 AM", "", "07:09 PM"));
    EXPECT_THAT(page.rows.at(4).cells,
                ElementsAre("Astronomical twilight, 18\u00b0", "05:35 AM", "", "07:35 PM"));
}

TEST_F(TodayPageTest, SaysHowBothStandAndHowTheMoonIsLit) {
    const SkyPage page = PageAt(In2026(2, 18, 15, 0));
    EXPECT_THAT(page.note,
                HasSubstr("Sun now: 3.7\u00b0 above the horizon, bearing 256.1\u00b0\n"));
    EXPECT_THAT(page.note,
                HasSubstr("Moon now: 16.6\u00b0 above the horizon, bearing 256.1\u00b0\n"));
    EXPECT_THAT(page.note, HasSubstr("Waxing crescent: 1.1 days old, 1% of the disc lit, "));
}

TEST_F(TodayPageTest, SaysBelowTheHorizonAtNight) {
    EXPECT_THAT(PageAt(In2026(2, 18, 20, 0)).note, HasSubstr("\u00b0 below the horizon"));
}

TEST_F(TodayPageTest, SunThatDoesNotSetHasNoTimesButAWord) {
    SkyPlace tromso = MeccaSky();
    tromso.observer = {69.65, 18.96};
    const auto summer = PageAt(In2026(6, 21, 12, 0), tromso).rows;
    EXPECT_EQ(summer.at(0).cells.at(0), "Sun, up all day");
    EXPECT_EQ(summer.at(0).cells.at(1), "--:--");
    const auto winter = PageAt(In2026(12, 21, 12, 0), tromso).rows;
    EXPECT_EQ(winter.at(0).cells.at(0), "Sun, down all day");
}

}  // namespace
}  // namespace horavex
