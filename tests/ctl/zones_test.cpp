#include "ctl/ctl_json.h"

namespace horavex {
namespace {

Json Zones(int west, int nearest, int east) {
    return {{"west", west}, {"nearest", nearest}, {"east", east}};
}

TEST(CtlZones, HalfWayGoesEast) {
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude 37.5"), Zones(2, 3, 3));
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude -7.5"), Zones(-1, 0, 0));
}

TEST(CtlZones, MultipleOfFifteenIsItsOwnZone) {
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude 30"), Zones(2, 2, 3));
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude -30"), Zones(-3, -2, -2));
}

TEST(CtlZones, EdgesOfTheMapStayWithinTwelveHours) {
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude 180")["nearest"], 12);
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude -180")["nearest"], -12);
}

TEST(CtlZones, LongitudeIsRoundedToTheHundredth) {
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude 37.4951"), Zones(2, 3, 3));
    EXPECT_EQ(JsonOf(Ctl(), "zones --longitude 37.4949"), Zones(2, 2, 3));
}

TEST(CtlZones, TextForPeopleIsOneLine) {
    EXPECT_EQ(Ctl().Run("zones --longitude 37.5").out, "west 2, nearest 3, east 3\n");
}

TEST(CtlDst, DaysOf2026) {
    const Json days = JsonOf(Ctl(), "dst --year 2026");
    EXPECT_EQ(days, Json({{"start", 94}, {"end", 297}}));
    EXPECT_THAT(KeysOf(days), testing::ElementsAre("start", "end"));
}

TEST(CtlDst, SouthTurnsTheDaysRound) {
    EXPECT_EQ(JsonOf(Ctl(), "dst --year 2026 --south"), Json({{"start", 297}, {"end", 94}}));
}

TEST(CtlDst, LeapYearCountsItsDay) {
    // 6 April and the Saturday before 27 October 2024.
    EXPECT_EQ(JsonOf(Ctl(), "dst --year 2024"), Json({{"start", 97}, {"end", 300}}));
}

TEST(CtlDst, TextForPeopleIsOneLine) {
    EXPECT_EQ(Ctl().Run("dst --year 2026").out, "94 to 297\n");
}

}  // namespace
}  // namespace horavex
