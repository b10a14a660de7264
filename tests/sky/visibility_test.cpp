#include "sky/visibility.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/angle.h"

namespace horavex {
namespace {

/// The line that the technical note takes its curve from: the arcs of vision that the Indian
/// Astronomical Ephemeris asked for at a difference in azimuth, degrees. Widths are of a moon of 15
/// minutes of arc.
struct IndianRow {
    double azimuth;
    double vision;
};

constexpr IndianRow kIndian[] = {{0, 10.4}, {5, 10.0}, {10, 9.3}, {15, 8.0}, {20, 6.2}};

double WidthOf(const IndianRow& row) {
    const double light = std::cos(DegToRad(row.vision)) * std::cos(DegToRad(row.azimuth));
    return 15.0 * (1.0 - light);
}

TEST(YallopVerdict, IsNearlyZeroOnTheLineThatTheCurveWasFittedTo) {
    for (const IndianRow& row : kIndian) {
        EXPECT_NEAR(YallopVerdict(row.vision, WidthOf(row)).value, 0.0, 0.012) << row.azimuth;
    }
}

TEST(YallopVerdict, HasTheClassesOfTheNoteWithEachLimitBelow) {
    const auto letter = [](double q) { return YallopVerdict(11.8371 + 10.0 * q, 0.0).letter; };
    EXPECT_EQ(letter(0.217), 'A');
    EXPECT_EQ(letter(0.215), 'B');
    EXPECT_EQ(letter(-0.013), 'B');
    EXPECT_EQ(letter(-0.015), 'C');
    EXPECT_EQ(letter(-0.159), 'C');
    EXPECT_EQ(letter(-0.161), 'D');
    EXPECT_EQ(letter(-0.231), 'D');
    EXPECT_EQ(letter(-0.233), 'E');
    EXPECT_EQ(letter(-0.292), 'E');
    EXPECT_EQ(letter(-0.294), 'F');
}

/// The least arcs of vision of the zones C, B and A for a width: the paper's table of limits.
struct OdehRow {
    double width;
    double c, b, a;
};

constexpr OdehRow kOdeh[] = {{0.1, 5.6, 8.5, 12.2}, {0.2, 5.0, 7.9, 11.6}, {0.3, 4.4, 7.3, 11.0},
                             {0.4, 3.8, 6.7, 10.4}, {0.5, 3.2, 6.2, 9.8},  {0.6, 2.7, 5.6, 9.3},
                             {0.7, 2.1, 5.1, 8.7},  {0.8, 1.6, 4.5, 8.2},  {0.9, 1.0, 4.0, 7.6}};

TEST(OdehVerdict, ChangesItsZoneAtThePublishedArcs) {
    constexpr double kFigure = 0.06;  // the table has one figure behind the point
    for (const OdehRow& row : kOdeh) {
        EXPECT_EQ(OdehVerdict(row.c - kFigure, row.width).letter, 'D') << row.width;
        EXPECT_EQ(OdehVerdict(row.c + kFigure, row.width).letter, 'C') << row.width;
        EXPECT_EQ(OdehVerdict(row.b - kFigure, row.width).letter, 'C') << row.width;
        EXPECT_EQ(OdehVerdict(row.b + kFigure, row.width).letter, 'B') << row.width;
        EXPECT_EQ(OdehVerdict(row.a - kFigure, row.width).letter, 'B') << row.width;
        EXPECT_EQ(OdehVerdict(row.a + kFigure, row.width).letter, 'A') << row.width;
    }
}

TEST(OdehVerdict, HasTheLimitsOfThePaper) {
    EXPECT_EQ(OdehVerdict(7.1651 + 5.6501, 0.0).letter, 'A');
    EXPECT_EQ(OdehVerdict(7.1651 + 5.6499, 0.0).letter, 'B');
    EXPECT_EQ(OdehVerdict(7.1651 - 0.9599, 0.0).letter, 'C');
    EXPECT_EQ(OdehVerdict(7.1651 - 0.9601, 0.0).letter, 'D');
}

}  // namespace
}  // namespace horavex
