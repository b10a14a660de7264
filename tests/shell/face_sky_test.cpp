#include "shell/face_sky.h"

#include "engine/day_driver.h"
#include "sky/day_sky.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "support/program_test.h"

namespace horavex {
namespace {

struct FaceSkyTest : ProgramTest {
    FaceSkyTest() { StartAgain(); }
};

TEST_F(FaceSkyTest, SunStandsInTheSouthOfMeccaAtItsNoon) {
    const auto sky = SkyOfFace(platform.clock.Now());
    EXPECT_NEAR(sky->sunAltitude, 48.6, 0.5);  // 90 - 21.4 - 20.0
    EXPECT_NEAR(AltitudeOnArc(sky->sunArc, 0.5), sky->sunAltitude, 0.5);
}

TEST_F(FaceSkyTest, StaysTheSameObjectUntilTheMinuteTurns) {
    const Date noon = platform.clock.Today() + 0.5;
    const auto sky = SkyOfFace(noon);
    EXPECT_EQ(SkyOfFace(noon + 59.0 / 86400.0), sky);
    const auto next = SkyOfFace(noon + 60.0 / 86400.0);
    EXPECT_NE(next, sky);
    EXPECT_EQ(next->sunArc, sky->sunArc);
}

TEST_F(FaceSkyTest, AnotherPlaceOrClockHasAnotherSkyAtOnce) {
    const Date noon = platform.clock.Today() + 0.5;
    const double before = SkyOfFace(noon)->sunAltitude;
    ActiveLocation.City.Latitude = 5991;
    const double north = SkyOfFace(noon)->sunAltitude;
    EXPECT_LT(north, before - 20.0);
    ActiveSettings.TimeZone += 6.0;
    const auto morning = SkyOfFace(noon);
    EXPECT_LT(morning->sunAltitude, north - 10.0);
    EXPECT_LT(morning->sunArc.at(24), 0.0);
}

TEST_F(FaceSkyTest, FaceGetsItWithTheDay) {
    std::shared_ptr<const DaySky> told;
    platform.face.onShowDay = [&](const DayView& day) { told = day.sky; };
    ShowDay();
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told, SkyOfFace(platform.clock.Now()));
}

}  // namespace
}  // namespace horavex
