#include "moon/moon_pictures.h"

#include <algorithm>
#include <set>

#include "moon/moon_window.h"
#include "store/location_record.h"
#include "support/program_test.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

constexpr Point kCentre{1000.0, 1000.0};
constexpr double kRim = 15.0;
constexpr double kRadius = 100.0 + kRim;
constexpr double kLitRadius = 100.0;

PolygonStep LitSideAt(double elongation, bool south = false) {
    Drawing drawing;
    AddMoonDisc(drawing, kCentre, kRadius, elongation, south);
    EXPECT_EQ(drawing.size(), 2U);
    const auto* disc = std::get_if<FilledCircleStep>(&drawing.front());
    EXPECT_TRUE(disc != nullptr && disc->centre == kCentre && disc->radius == kRadius);
    return std::get<PolygonStep>(drawing.back());
}

/// Shares of the area within the rim, right and left of its middle.
struct Lit {
    double left;
    double right;
};

Lit LitAt(double elongation, bool south = false) {
    const auto corners = LitSideAt(elongation, south).corners;
    const auto areaFrom = [&](double side) {
        double area = 0.0;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Point& a = corners[i];
            const Point& b = corners[(i + 1) % corners.size()];
            const double ax = std::max(0.0, side * (a.x - kCentre.x));
            const double bx = std::max(0.0, side * (b.x - kCentre.x));
            area += (ax + bx) / 2.0 * (b.y - a.y);
        }
        return std::abs(area) / (3.14159265358979 * kLitRadius * kLitRadius);
    };
    return {areaFrom(-1.0), areaFrom(1.0)};
}

TEST(MoonDiscTest, NewMoonIsDark) {
    for (const double elongation : {0.0, 360.0}) {
        Drawing drawing;
        AddMoonDisc(drawing, kCentre, kRadius, elongation, false);
        EXPECT_EQ(drawing.size(), 1U);
    }
}

TEST(MoonDiscTest, RimIsLeftAroundTheLitSide) {
    for (const Point& corner : LitSideAt(180.0).corners) {
        EXPECT_NEAR(std::hypot(corner.x - kCentre.x, corner.y - kCentre.y), kRadius - kRim, 1e-6);
    }
}

TEST(MoonDiscTest, FirstQuarterIsLitOnTheRight) {
    EXPECT_NEAR(LitAt(90.0).right, 0.5, 0.005);
    EXPECT_NEAR(LitAt(90.0).left, 0.0, 1e-9);
}

TEST(MoonDiscTest, FullMoonIsLitAllOver) {
    EXPECT_NEAR(LitAt(180.0).left, 0.5, 0.005);
    EXPECT_NEAR(LitAt(180.0).right, 0.5, 0.005);
}

TEST(MoonDiscTest, LastQuarterIsLitOnTheLeft) {
    EXPECT_NEAR(LitAt(270.0).left, 0.5, 0.005);
    EXPECT_NEAR(LitAt(270.0).right, 0.0, 1e-9);
    EXPECT_NEAR(LitAt(-90.0).left, 0.5, 0.005) << "an angle on another turn";
}

TEST(MoonDiscTest, CrescentIsLitByItsPhase) {
    // The lit share is (1 - cos elongation) / 2.
    EXPECT_NEAR(LitAt(45.0).right, (1.0 - std::cos(0.785398)) / 2.0, 0.005);
    EXPECT_NEAR(LitAt(135.0).left + LitAt(135.0).right, (1.0 + std::cos(0.785398)) / 2.0, 0.005);
}

TEST(MoonDiscTest, SouthSeesItTheOtherWayRound) {
    EXPECT_NEAR(LitAt(90.0, true).left, 0.5, 0.005);
    EXPECT_NEAR(LitAt(270.0, true).right, 0.5, 0.005);
}

class MoonPicturesTest : public ProgramTest {
protected:
    MoonPicturesTest() { StartAgain(); }

    /// The tonight's moon: the lit side's reach to either side of the middle.
    std::pair<double, double> TonightsReach() {
        const Drawing& drawing = form.picTonight.drawing;
        const auto& disc = std::get<FilledCircleStep>(drawing.at(0));
        const auto& lit = std::get<PolygonStep>(drawing.at(1));
        const auto [least, most] =
            std::minmax_element(lit.corners.begin(), lit.corners.end(),
                                [](const Point& a, const Point& b) { return a.x < b.x; });
        const double radius = disc.radius - kRim;
        return {(disc.centre.x - least->x) / radius, (most->x - disc.centre.x) / radius};
    }

    static std::vector<PolygonStep> BandsOf(const Drawing& drawing) {
        std::vector<PolygonStep> bands;
        for (const DrawingStep& step : drawing) {
            if (const auto* band = std::get_if<PolygonStep>(&step)) {
                bands.push_back(*band);
            }
        }
        return bands;
    }

    static std::vector<PolygonStep> BandsBetween(std::int16_t rise, std::int16_t set) {
        return BandsOf(MoonDay(7200.0, 900.0, MoonRiseSet{{rise, 30, 0.0}, {set, 0, 0.0}}));
    }

    MoonPhasesForm& form = *Moon_Phases;
};

TEST_F(MoonPicturesTest, EachRowHasItsDiscBesideIt) {
    ShowMoonPhases();
    EXPECT_EQ(form.picNewMoon.drawing.size(), 13U);
    for (const Picture* picture :
         {&form.picFirstQuarter, &form.picFullMoon, &form.picLastQuarter}) {
        ASSERT_EQ(picture->drawing.size(), 26U) << picture->Name();
        const auto& third = std::get<FilledCircleStep>(picture->drawing[4]);
        EXPECT_EQ(third.centre.y, 2.5 * kMoonRowHeight);
        EXPECT_EQ(13 * kMoonRowHeight, picture->ScaleHeight());
    }
}

TEST_F(MoonPicturesTest, NewOnesAreAskedToBeDrawn) {
    struct : FormObserver {
        void ControlChanged(Control& control) override { changed.insert(control.Name()); }
        void FormChanged() override {}
        std::set<std::string> changed;
    } observer;
    form.SetObserver(&observer);
    ShowMoonPhases();
    form.SetObserver(nullptr);
    EXPECT_THAT(observer.changed,
                testing::IsSupersetOf({"picNewMoon", "picFirstQuarter", "picFullMoon",
                                       "picLastQuarter", "picTonight"}));
}

TEST_F(MoonPicturesTest, QuartersOfTheSouthHangTheOtherWayRound) {
    const auto limb = [&] {
        const auto& lit = std::get<PolygonStep>(form.picFirstQuarter.drawing[1]);
        return lit.corners[16].x - form.picFirstQuarter.ScaleWidth() / 2.0;
    };
    ShowMoonPhases();
    EXPECT_GT(limb(), 90.0);
    form.Unload();
    ActiveLocation.City.Latitude = -3400;
    ShowMoonPhases();
    EXPECT_LT(limb(), -90.0);
}

TEST_F(MoonPicturesTest, TonightsMoonIsLitAsItStandsInTheSky) {
    // Full on 24 November 2026, so that three days before the moon waxes beyond its half.
    ShowMoonPhases();
    EXPECT_GT(TonightsReach().first, 0.5);
    EXPECT_NEAR(TonightsReach().second, 1.0, 1e-9);
    form.Unload();
    SetClock(2026, 12, 1, 12, 0, 0);  // last quarter
    ShowMoonPhases();
    EXPECT_NEAR(TonightsReach().first, 1.0, 1e-9);
    EXPECT_LT(TonightsReach().second, 0.25);
}

TEST_F(MoonPicturesTest, StripOfTheDayIsLightBetweenRiseAndSet) {
    const auto bands = BandsBetween(6, 18);
    ASSERT_EQ(bands.size(), 2U);
    const double dayWidth = bands[0].corners[1].x - bands[0].corners[0].x;
    const double left = bands[0].corners[0].x;
    EXPECT_NEAR(bands[1].corners[0].x, left + dayWidth * 6.5 / 24.0, 1e-6);
    EXPECT_NEAR(bands[1].corners[1].x, left + dayWidth * 18.0 / 24.0, 1e-6);
}

TEST_F(MoonPicturesTest, MoonThatSetsBeforeItRisesLightsBothEndsOfTheDay) {
    const auto bands = BandsBetween(18, 6);
    ASSERT_EQ(bands.size(), 3U);
    EXPECT_EQ(bands[1].corners[0].x, bands[0].corners[0].x);
    EXPECT_EQ(bands[2].corners[1].x, bands[0].corners[1].x);
}

TEST_F(MoonPicturesTest, HourBeyondMidnightEndsAtTheStripsEnd) {
    const auto bands = BandsBetween(12, 24);
    EXPECT_NEAR(bands[1].corners[1].x, bands[0].corners[1].x, 1e-9);
}

TEST_F(MoonPicturesTest, ErrorLeavesAnEmptyStrip) {
    ShowMoonPhases();
    EXPECT_TRUE(form.picDay.drawing.empty());
    form.SSTab1.UserSelect(2);
    form.cmdCalculate.UserClick();
    EXPECT_GT(BandsOf(form.picDay.drawing).size(), 1U);
    form.cboDay.SetText("");
    form.cmdCalculate.UserClick();
    EXPECT_EQ(BandsOf(form.picDay.drawing).size(), 1U);
}

}  // namespace
}  // namespace horavex
