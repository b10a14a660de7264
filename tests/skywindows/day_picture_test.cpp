#include "skywindows/day_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "forms/inks.h"
#include "skywindows/sky_test_place.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

constexpr double kWidth = 12600.0;
constexpr double kHeight = 3900.0;

struct DayPictureTest : testing::Test {
    Drawing PictureAt(Date now) {
        return DayPicture(kWidth, kHeight, ErfaAlmanac(), MeccaSky(), now);
    }

    /// The disc of the sun, which is drawn last where it is drawn.
    const FilledCircleStep* SunIn(const Drawing& drawing) {
        return std::get_if<FilledCircleStep>(&drawing.back());
    }

    TestPlatform platform;
};

TEST_F(DayPictureTest, SunStandsInTheMiddleAtNoonAndLowerInTheEvening) {
    const Drawing noon = PictureAt(In2026(2, 18, 9, 34));
    const Drawing evening = PictureAt(In2026(2, 18, 14, 0));
    const auto* high = SunIn(noon);
    const auto* low = SunIn(evening);
    ASSERT_TRUE(high != nullptr && low != nullptr);
    EXPECT_NEAR(high->centre.x, kWidth / 2.0, kWidth / 20.0);
    EXPECT_LT(high->centre.x, low->centre.x);
    EXPECT_LT(high->centre.y, low->centre.y);
}

TEST_F(DayPictureTest, SunDeepBelowTheHorizonIsNotDrawn) {
    const Drawing night = PictureAt(In2026(2, 18, 21, 30));
    EXPECT_EQ(SunIn(night), nullptr);
}

TEST_F(DayPictureTest, EverythingLiesInsideTheArea) {
    for (const DrawingStep& step : PictureAt(In2026(2, 18, 9, 34))) {
        if (const auto* line = std::get_if<LineStep>(&step)) {
            EXPECT_GE(std::min(line->from.y, line->to.y), 0.0);
            EXPECT_LE(std::max(line->from.y, line->to.y), kHeight);
            EXPECT_GE(std::min(line->from.x, line->to.x), 0.0);
            EXPECT_LE(std::max(line->from.x, line->to.x), kWidth);
        }
    }
}

TEST_F(DayPictureTest, HoursHaveTheirTicksUnderTheChart) {
    const Drawing picture = PictureAt(In2026(2, 18, 9, 34));
    double bottom = 0.0;  // of the line of the present
    for (const DrawingStep& step : picture) {
        const auto* line = std::get_if<LineStep>(&step);
        bottom = line != nullptr && line->pen.colour == ink::kNow ? line->to.y : bottom;
    }
    const auto isTick = [&](const DrawingStep& step) {
        const auto* line = std::get_if<LineStep>(&step);
        return line != nullptr && line->from.y == bottom && line->to.y > bottom;
    };
    EXPECT_EQ(std::ranges::count_if(picture, isTick), 9);
}

// On the night of the full moon.
TEST_F(DayPictureTest, CurveGoesOnToTheEndOfTheDay) {
    const auto right = [&](Colour colour) {
        double furthest = 0.0;
        for (const DrawingStep& step : PictureAt(In2026(3, 3, 9, 34))) {
            const auto* line = std::get_if<LineStep>(&step);
            furthest = line != nullptr && line->pen.colour == colour
                           ? std::max(furthest, line->to.x)
                           : furthest;
        }
        return furthest;
    };
    EXPECT_NEAR(right(ink::kMoonPath), right(ink::kHorizon), 1.0);
}

TEST_F(DayPictureTest, LineOfThePresentGoesThroughTheSun) {
    const Drawing picture = PictureAt(In2026(2, 18, 14, 0));
    const auto isNow = [&](const DrawingStep& step) {
        const auto* line = std::get_if<LineStep>(&step);
        return line != nullptr && line->pen.colour == ink::kNow &&
               line->from.x == SunIn(picture)->centre.x;
    };
    EXPECT_EQ(std::ranges::count_if(picture, isNow), 1);
}

TEST_F(DayPictureTest, HoursAreNamedEveryThree) {
    std::vector<std::string> texts;
    for (const DrawingStep& step : PictureAt(In2026(2, 18, 9, 34))) {
        if (const auto* text = std::get_if<TextStep>(&step)) {
            texts.push_back(text->text);
        }
    }
    for (const char* hour : {"0", "3", "12", "21", "24"}) {
        EXPECT_EQ(std::ranges::count(texts, hour), 1) << hour;
    }
}

}  // namespace
}  // namespace horavex
