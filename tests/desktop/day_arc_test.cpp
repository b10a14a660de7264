#include "desktop/face/day_arc.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <cmath>
#include <numbers>

#include "desktop/face/moon_disc.h"

namespace horavex {
namespace {

constexpr double kRadius = 100.0;

bool IsLit(double litPart, double limb, double x, double y) {
    return LitMoon(kRadius, litPart, limb).contains(QPointF(x, y));
}

TEST(LitMoon, GrowsFromNothingByTheHalfToTheFullDisc) {
    for (const double x : {-90.0, -50.0, 0.0, 50.0, 90.0}) {
        EXPECT_FALSE(IsLit(0.0, 90.0, x, 0.0));
        EXPECT_EQ(IsLit(0.5, 90.0, x, 0.0), x >= 0.0) << x;
        EXPECT_TRUE(IsLit(1.0, 90.0, x, 0.0));
    }
}

TEST(LitMoon, CrescentAndGibbousMoonEndWhereTheBorderOfLightIs) {
    EXPECT_FALSE(IsLit(0.25, 90.0, 45.0, 0.0));  // the border lies half a radius from the middle
    EXPECT_TRUE(IsLit(0.25, 90.0, 55.0, 0.0));
    EXPECT_TRUE(IsLit(0.75, 90.0, -45.0, 0.0));
    EXPECT_FALSE(IsLit(0.75, 90.0, -55.0, 0.0));
}

TEST(LitMoon, LimbPointsClockwiseFromUp) {
    EXPECT_TRUE(IsLit(0.3, 0.0, 0.0, -90.0));
    EXPECT_TRUE(IsLit(0.3, 90.0, 90.0, 0.0));
    EXPECT_TRUE(IsLit(0.3, 180.0, 0.0, 90.0));
    EXPECT_TRUE(IsLit(0.3, -90.0, -90.0, 0.0));
    EXPECT_FALSE(IsLit(0.3, 0.0, 0.0, 90.0));
}

DaySky Sky(double dayPart, std::vector<double> arc) {
    DaySky sky;
    sky.local = 46000.0 + dayPart;
    sky.sunAltitude = AltitudeOnArc(arc, dayPart);
    sky.moonAltitude = -30.0;
    sky.sunArc = std::move(arc);
    return sky;
}

constexpr double kLateNoon = 14.0;  // hours

/// The sky of an hour where the clock has noon late. moonBehind: hours from the sun to the moon.
DaySky LateSky(double hour, double moonBehind) {
    const auto pastMeridian = [](double at) { return std::remainder(at - kLateNoon, 24.0) * 15.0; };
    std::vector<double> arc;
    for (int at = 0; at <= 24; ++at) {
        arc.push_back(50.0 * std::cos(pastMeridian(at) * std::numbers::pi / 180.0));
    }
    DaySky sky = Sky(hour / 24.0, std::move(arc));
    sky.sunPastMeridian = pastMeridian(hour);
    sky.moonPastMeridian = pastMeridian(hour - moonBehind);
    sky.litPart = 0.5;
    return sky;
}

/// Where two pictures differ.
QRect Differing(const QImage& one, const QImage& other) {
    QRect found;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

class DayArcTest : public testing::Test {
protected:
    DayArcTest() { arc.resize(418, 78); }

    void Show(double dayPart, std::vector<double> altitudes) {
        arc.ShowSky(std::make_shared<DaySky>(Sky(dayPart, std::move(altitudes))));
    }
    QImage Picture() { return arc.grab().toImage(); }

    /// The moon, once up, is painted where the way of the sun has that hour.
    void ExpectMoonAt(double hour, DaySky sky) {
        arc.ShowSky(std::make_shared<DaySky>(sky));
        const QImage without = Picture();
        sky.moonAltitude = 45.0;
        arc.ShowSky(std::make_shared<DaySky>(sky));
        const QRect moon = Differing(without, Picture());
        EXPECT_NEAR(QRectF(moon).center().x(), arc.PointAt(hour / 24.0).x(), 1.0);
    }

    const std::vector<double> usual = {-40.0, 0.0, 50.0, 0.0, -40.0};
    DayArc arc;
};

TEST_F(DayArcTest, NoonIsHighestInTheMiddleAndMidnightsAreTheEnds) {
    Show(0.5, usual);
    EXPECT_DOUBLE_EQ(arc.PointAt(0.5).x(), 209.0);
    EXPECT_LT(arc.PointAt(0.5).y(), arc.PointAt(0.25).y());
    EXPECT_LT(arc.PointAt(0.25).y(), arc.PointAt(0.0).y());
    EXPECT_DOUBLE_EQ(arc.PointAt(0.0).y(), arc.PointAt(1.0).y());
}

TEST_F(DayArcTest, ArcOfAnyPlaceStaysInItsField) {
    const std::vector<double> whiteNights = {7.0, 20.0, 53.0, 20.0, 7.0};
    const std::vector<double> polarNight = {-50.0, -20.0, -4.0, -20.0, -50.0};
    for (const auto& altitudes : {usual, whiteNights, polarNight}) {
        Show(0.1, altitudes);
        for (double part = 0.0; part <= 1.0; part += 0.05) {
            EXPECT_TRUE(QRectF(arc.rect()).adjusted(8, 8, -8, -8).contains(arc.PointAt(part)));
        }
    }
}

TEST_F(DayArcTest, NextPrayerIsLitUpAndOneThatDoesNotComeHasNoMark) {
    Show(0.5, usual);
    arc.ShowPrayers({0.2, 0.25, 0.5, 0.65, 0.75, 0.8}, 4);
    const QImage maghrib = Picture();
    arc.ShowPrayers({0.2, 0.25, 0.5, 0.65, 0.75, 0.8}, 5);
    EXPECT_NE(Picture(), maghrib);
    arc.ShowPrayers({std::nullopt, 0.25, 0.5, 0.65, 0.75, std::nullopt}, 4);
    EXPECT_NE(Picture(), maghrib);
}

TEST_F(DayArcTest, SunGoesOnAlongItAndTheMoonShowsWhileItIsUp) {
    Show(0.5, usual);
    const QImage noon = Picture();
    Show(0.6, usual);
    EXPECT_NE(Picture(), noon);
    DaySky withMoon = Sky(0.5, usual);
    withMoon.moonAltitude = 30.0;
    withMoon.moonPastMeridian = 90.0;
    withMoon.litPart = 0.4;
    arc.ShowSky(std::make_shared<DaySky>(withMoon));
    EXPECT_NE(Picture(), noon);
}

TEST_F(DayArcTest, MoonStandsWhereTheSunDoesAtTheSameHourAngleWhenNoonIsAtTwo) {
    ExpectMoonAt(18.0, LateSky(18.0, 0.0));
    ExpectMoonAt(8.0, LateSky(14.0, 6.0));
    ExpectMoonAt(10.0, LateSky(22.0, 12.0));
}

TEST_F(DayArcTest, MoonOfTheOtherSideOfMidnightStaysOnTheArc) {
    ExpectMoonAt(13.0, LateSky(1.0, 12.0));
    ExpectMoonAt(1.0, LateSky(22.0, -3.0));
}

TEST_F(DayArcTest, NothingIsPaintedBeforeASkyIsTold) {
    arc.ShowPrayers({0.2, std::nullopt}, 0);
    QImage picture(arc.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QImage empty = picture;
    arc.render(&picture, {}, {}, {});
    EXPECT_EQ(picture, empty);
}

}  // namespace
}  // namespace horavex
