#include "geo/world_map.h"

#include <cmath>

#include "base/bytes.h"
#include "base/fault.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr GeoPoint kCairo{30.05, 31.25};

struct WorldMapTest : testing::Test {
    void WriteLands(const std::string& text) {
        platform.files.WriteWhole("/program/Dat/Land.txt", BytesOf(text));
    }

    template <class Step>
    static std::vector<Step> StepsOf(const Drawing& drawing) {
        std::vector<Step> steps;
        for (const DrawingStep& step : drawing) {
            if (const Step* found = std::get_if<Step>(&step)) {
                steps.push_back(*found);
            }
        }
        return steps;
    }

    TestPlatform platform;
};

TEST_F(WorldMapTest, LinesOfTheFileAreLands) {
    WriteLands("# a comment\n10,20 -30.5,-40.5 0,0\n\n1,2 3,4 5,6\n");
    const auto lands = ReadLands();
    ASSERT_EQ(lands.size(), 2U);
    EXPECT_THAT(lands[0],
                ElementsAre(GeoPoint{20.0, 10.0}, GeoPoint{-40.5, -30.5}, GeoPoint{0.0, 0.0}));
}

TEST_F(WorldMapTest, DamagedFileIsAFault) {
    EXPECT_THROW(ReadLands(), FileFault);
    WriteLands("1,2 3\n");
    EXPECT_THROW(ReadLands(), BoundsFault);
    WriteLands("1,2 x,4\n");
    EXPECT_THROW(ReadLands(), TypeMismatchFault);
}

TEST_F(WorldMapTest, ShippedLandsLieOnTheGlobe) {
    CopyBuiltProgramFolder(platform.files);
    const auto lands = ReadLands();
    EXPECT_GT(lands.size(), 60U);
    for (const auto& land : lands) {
        EXPECT_GE(land.size(), 3U);
        for (const GeoPoint& corner : land) {
            EXPECT_LE(std::fabs(corner.latitude), 90.0);
            EXPECT_LE(std::fabs(corner.longitude), 180.0);
        }
    }
}

TEST_F(WorldMapTest, GreatCircleRunsFromOneEndToTheOther) {
    const auto way = GreatCircle(kCairo, {-20.0, 100.0});
    EXPECT_NEAR(way.front().latitude, 30.05, 1e-9);
    EXPECT_NEAR(way.front().longitude, 31.25, 1e-9);
    EXPECT_NEAR(way.back().latitude, -20.0, 1e-9);
    EXPECT_NEAR(way.back().longitude, 100.0, 1e-9);
}

TEST_F(WorldMapTest, GreatCircleFollowsMeridiansAndTheEquator) {
    const auto equator = GreatCircle({0.0, 10.0}, {0.0, 50.0});
    EXPECT_NEAR(equator[36].latitude, 0.0, 1e-9);
    EXPECT_NEAR(equator[36].longitude, 30.0, 1e-9);
    const auto overThePole = GreatCircle({60.0, 0.0}, {60.0, 180.0});
    EXPECT_NEAR(overThePole[36].latitude, 90.0, 1e-6);
}

TEST_F(WorldMapTest, GreatCircleToTheSamePlaceStaysThere) {
    for (const GeoPoint& point : GreatCircle(kCairo, kCairo)) {
        EXPECT_NEAR(point.latitude, 30.05, 1e-9);
        EXPECT_NEAR(point.longitude, 31.25, 1e-9);
    }
}

TEST_F(WorldMapTest, WayEndsAtMecca) {
    WriteLands("0,0 10,0 10,10\n");
    const Drawing map = WorldMap(3600.0, 1800.0, kCairo);
    const auto lines = StepsOf<LineStep>(map);
    EXPECT_NEAR(lines.front().from.x, 2112.5, 1e-6);
    EXPECT_NEAR(lines.front().from.y, 599.5, 1e-6);
    EXPECT_NEAR(lines.back().to.x, 2198.2333, 1e-3);
    EXPECT_NEAR(lines.back().to.y, 685.7667, 1e-3);
    EXPECT_EQ(StepsOf<PolygonStep>(map).size(), 2U) << "the sea and one land";
}

TEST_F(WorldMapTest, WayAcrossTheDateLineIsNotDrawnAcrossTheMap) {
    for (const LineStep& line : StepsOf<LineStep>(WorldMap(3600.0, 1800.0, {15.0, -150.0}))) {
        EXPECT_LT(std::fabs(line.from.x - line.to.x), 1800.0);
    }
}

TEST_F(WorldMapTest, MapOfAPlaceShowsWhatLiesAround) {
    WriteLands("1.25,0.05 61.25,30.05 31.25,60.05\n");
    const Drawing map = PlaceMap(3600.0, 1800.0, kCairo);
    const auto marks = StepsOf<FilledCircleStep>(map);
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_NEAR(marks[0].centre.x, 1800.0, 1e-6);
    EXPECT_NEAR(marks[0].centre.y, 900.0, 1e-6);
    const auto corners = StepsOf<PolygonStep>(map).back().corners;
    EXPECT_NEAR(corners[0].x, 900.0, 1e-6) << "30 degrees west of the middle";
    EXPECT_NEAR(corners[2].y, 0.0, 1e-6) << "30 degrees north of it";
}

TEST_F(WorldMapTest, MapOfAPlaceEndsAtTheEdgesOfTheWorld) {
    const auto mark = StepsOf<FilledCircleStep>(PlaceMap(3600.0, 1800.0, GeoPoint{78.0, -178.0}));
    EXPECT_NEAR(mark[0].centre.x, 60.0, 1e-6);
    EXPECT_NEAR(mark[0].centre.y, 360.0, 1e-6);
}

TEST_F(WorldMapTest, MapOfNoPlaceIsTheWorldWithoutAMark) {
    WriteLands("-180,90 180,-90 0,0\n");
    const Drawing map = PlaceMap(3600.0, 1800.0, std::nullopt);
    EXPECT_TRUE(StepsOf<FilledCircleStep>(map).empty());
    EXPECT_EQ(StepsOf<PolygonStep>(map)[1].corners[1], (Point{3600.0, 1800.0}));
}

TEST_F(WorldMapTest, MapWithoutItsFileStillHasTheWay) {
    const Drawing map = WorldMap(3600.0, 1800.0, kCairo);
    EXPECT_EQ(StepsOf<PolygonStep>(map).size(), 1U);
    EXPECT_FALSE(StepsOf<LineStep>(map).empty());
}

}  // namespace
}  // namespace horavex
