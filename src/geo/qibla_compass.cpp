#include "geo/qibla_compass.h"

#include <cmath>

#include "engine/angle.h"
#include "forms/inks.h"

namespace horavex {

namespace {

constexpr double kTextHeight = 2000.0;
constexpr double kAxisOverhang = 120.0;
constexpr double kDiagonalMark = 45.0;  // radius

/// Draws around a centre. Angles are mathematical: radians from the east, against the clock.
class Compass {
public:
    Compass(double width, double height)
        : centre_{width / 2.0, (height - kTextHeight) / 2.0}, radius_(0.8 * centre_.y) {}

    void AddDial() {
        steps.emplace_back(FilledCircleStep{centre_, radius_, kWhite, {kBlack, 4}});
        const double reach = radius_ + kAxisOverhang;
        AddLine({centre_.x - reach, centre_.y}, {centre_.x + reach, centre_.y}, {});
        AddLine({centre_.x, centre_.y - reach}, {centre_.x, centre_.y + reach}, {});
        const double diagonal = radius_ * std::sin(Pi / 4.0);
        for (const double x : {-diagonal, diagonal}) {
            for (const double y : {-diagonal, diagonal}) {
                steps.emplace_back(
                    FilledCircleStep{{centre_.x + x, centre_.y + y}, kDiagonalMark, kBlack});
            }
        }
    }

    void AddSun(double angle) {
        AddLine(centre_, At(angle, 0.72), {ink::kSunRim, 1});
        steps.emplace_back(
            FilledCircleStep{At(angle, 0.8), 0.08 * radius_, ink::kSun, {ink::kSunRim}});
    }

    void AddNeedle(double angle) {
        constexpr double kHalfHead = 15.0;  // degrees between needle and edge of the head
        const Point tip = At(angle, 0.95);
        const auto barb = [&](double degrees) {
            const double back = angle + Pi + DegToRad(degrees);
            return Point{tip.x + 0.15 * radius_ * std::cos(back),
                         tip.y - 0.15 * radius_ * std::sin(back)};
        };
        AddLine(centre_, tip, {ink::kMark, 3});
        steps.emplace_back(
            PolygonStep{{tip, barb(-kHalfHead), barb(kHalfHead)}, ink::kMark, {ink::kMark}});
    }

    Drawing steps;

private:
    Point At(double angle, double share) const {
        return {centre_.x + share * radius_ * std::cos(angle),
                centre_.y - share * radius_ * std::sin(angle)};
    }
    void AddLine(Point from, Point to, Pen pen) { steps.emplace_back(LineStep{from, to, pen}); }

    Point centre_;
    double radius_;
};

double MathematicalAngle(double bearing) {
    const double angle = Pi / 2.0 - bearing;
    return angle < 0.0 ? angle + 2.0 * Pi : angle;
}

}  // namespace

Drawing QiblaCompass(double width, double height, double qibla, std::optional<double> sun) {
    Compass compass(width, height);
    compass.AddDial();
    if (sun) {
        compass.AddSun(MathematicalAngle(*sun));
    }
    compass.AddNeedle(MathematicalAngle(qibla));
    return compass.steps;
}

}  // namespace horavex
