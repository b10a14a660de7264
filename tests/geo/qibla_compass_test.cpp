#include "geo/qibla_compass.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace horavex {
namespace {

using std::numbers::pi;

// An area whose centre is (5000, 3000) and whose circle has the radius 2400.
constexpr double kWidth = 10000.0;
constexpr double kHeight = 8000.0;

Drawing Compass(double qibla, std::optional<double> sun = std::nullopt) {
    return QiblaCompass(kWidth, kHeight, qibla, sun);
}

template <class Step>
std::vector<Step> StepsOf(const Drawing& drawing) {
    std::vector<Step> steps;
    for (const DrawingStep& step : drawing) {
        if (const Step* found = std::get_if<Step>(&step)) {
            steps.push_back(*found);
        }
    }
    return steps;
}

void ExpectAt(const Point& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-6);
    EXPECT_NEAR(point.y, y, 1e-6);
}

TEST(QiblaCompassTest, CircleLeavesRoomForTheTextsBelow) {
    const auto circle = StepsOf<FilledCircleStep>(Compass(0.0)).front();
    ExpectAt(circle.centre, 5000.0, 3000.0);
    EXPECT_DOUBLE_EQ(circle.radius, 2400.0);
    EXPECT_EQ(circle.fill, kWhite);
    EXPECT_EQ(circle.pen.width, 4);
}

TEST(QiblaCompassTest, AxesReachPastTheCircle) {
    const auto lines = StepsOf<LineStep>(Compass(0.0));
    ExpectAt(lines[0].from, 2480.0, 3000.0);
    ExpectAt(lines[0].to, 7520.0, 3000.0);
    ExpectAt(lines[1].from, 5000.0, 480.0);
    ExpectAt(lines[1].to, 5000.0, 5520.0);
    EXPECT_EQ(lines[0].pen, Pen{});
}

TEST(QiblaCompassTest, MarksStandOnTheDiagonalsOfTheCircle) {
    const auto circles = StepsOf<FilledCircleStep>(Compass(0.0));
    ASSERT_EQ(circles.size(), 5U);
    const double diagonal = 2400.0 * std::sin(pi / 4.0);
    ExpectAt(circles[1].centre, 5000.0 - diagonal, 3000.0 - diagonal);
    ExpectAt(circles[4].centre, 5000.0 + diagonal, 3000.0 + diagonal);
}

TEST(QiblaCompassTest, NeedlePointsAtTheBearing) {
    ExpectAt(StepsOf<LineStep>(Compass(0.0)).back().to, 5000.0, 720.0);
    ExpectAt(StepsOf<LineStep>(Compass(pi / 2.0)).back().to, 7280.0, 3000.0);
    ExpectAt(StepsOf<LineStep>(Compass(pi)).back().to, 5000.0, 5280.0);
    ExpectAt(StepsOf<LineStep>(Compass(-pi / 2.0)).back().to, 2720.0, 3000.0);
}

TEST(QiblaCompassTest, HeadOfTheNeedleOpensFifteenDegreesToEachSide) {
    const auto head = StepsOf<PolygonStep>(Compass(0.0)).at(0).corners;
    const double length = 0.15 * 2400.0;
    const double x = length * std::sin(pi / 12.0);
    const double y = length * std::cos(pi / 12.0);
    ExpectAt(head[0], 5000.0, 720.0);
    ExpectAt(head[1], 5000.0 - x, 720.0 + y);
    ExpectAt(head[2], 5000.0 + x, 720.0 + y);
}

TEST(QiblaCompassTest, NeedleLiesOverTheRest) {
    const Drawing drawing = Compass(1.0, 2.0);
    EXPECT_TRUE(std::holds_alternative<PolygonStep>(drawing.back()));
    EXPECT_TRUE(std::holds_alternative<LineStep>(drawing[drawing.size() - 2]));
}

TEST(QiblaCompassTest, SunStandsAtItsBearingOrNotAtAll) {
    const auto circles = StepsOf<FilledCircleStep>(Compass(0.0, pi / 2.0));
    ASSERT_EQ(circles.size(), 6U);
    ExpectAt(circles[5].centre, 5000.0 + 0.8 * 2400.0, 3000.0);
}

}  // namespace
}  // namespace horavex
