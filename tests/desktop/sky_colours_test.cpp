#include "desktop/face/sky_colours.h"

#include <gtest/gtest.h>

#include <cmath>

#include "desktop/face/palette.h"
#include "desktop/look/contrast.h"
#include "desktop/scoped_look.h"

namespace horavex {
namespace {

constexpr double kLeastContrast = 4.5;

using look::Contrast;
using look::Over;

/// The sky at one part of its height, 0 at the top.
QColor At(const SkyColours& colours, float part) {
    QColor bottom = colours.bottom;
    bottom.setAlphaF(part);
    return Over(bottom, colours.top);
}

void ExpectReadable(const QColor& ground, std::initializer_list<QColor> texts, double altitude,
                    const char* where) {
    for (const QColor& text : texts) {
        EXPECT_GE(Contrast(text, ground), kLeastContrast)
            << text.name().toStdString() << " " << where << ", " << ground.name().toStdString()
            << " with the sun at " << altitude;
    }
}

TEST(SkyColours, EveryTextIsReadableOnEveryGroundAtEveryHeightOfTheSun) {
    for (double altitude = -90.0; altitude <= 90.0; altitude += 0.25) {
        const SkyColours colours = SkyColoursAt(altitude);
        for (float part = 0.0F; part <= 1.0F; part += 0.125F) {
            const QColor sky = At(colours, part);
            const QColor card = Over(colours.card, sky);
            ExpectReadable(sky, {kGold, kCream, kMuted}, altitude, "on the sky");
            ExpectReadable(card, {kGold, kCream}, altitude, "on a card");
            ExpectReadable(Over(kGlow, card), {kCream}, altitude, "on what glows");
            ExpectReadable(Over(kGlow, sky), {kCream}, altitude, "below the pointer");
            ExpectReadable(Over(kPressed, card), {kCream}, altitude, "on what is pressed");
        }
        // The table of times lies in the lower half.
        for (float part = 0.5F; part <= 1.0F; part += 0.125F) {
            const QColor card = Over(colours.card, At(colours, part));
            ExpectReadable(Over(kGlow, card), {kGold}, altitude, "in the row of the next prayer");
        }
    }
}

TEST(SkyColours, LinesAroundThingsAreSeenWhereTheDesktopWantsContrast) {
    for (const look::Theme theme : {look::Theme::kContrast, look::Theme::kLightContrast}) {
        const ScopedLook look(theme);
        EXPECT_GE(Contrast(EdgeOfFace(), PlainSky().card), 3.0);
    }
    const ScopedLook look(look::Theme::kDark);
    EXPECT_EQ(EdgeOfFace(), kEdge);
}

TEST(SkyColours, PlainSkyIsBlackWithoutStars) {
    const SkyColours colours = PlainSky();
    for (const QColor& text : {kGold, kCream, kMuted}) {
        EXPECT_GE(Contrast(text, colours.top), 7.0);
        EXPECT_GE(Contrast(text, Over(kPressed, Over(colours.card, colours.bottom))), 3.0);
    }
    EXPECT_EQ(colours.stars, 0.0);
}

TEST(MenusOfTheFace, AreReadable) {
    ExpectReadable(kSkyTop, {kCream, kMenuOff}, 0.0, "in a menu");
    ExpectReadable(kMenuChosen, {kCream}, 0.0, "on the chosen entry");
}

TEST(SkyColours, NightIsNavyWithItsStarsAndTheDayHasNone) {
    for (const double altitude : {-90.0, -30.0, -18.0}) {
        EXPECT_EQ(SkyColoursAt(altitude).top, kSkyTop);
        EXPECT_EQ(SkyColoursAt(altitude).bottom, kSkyBottom);
        EXPECT_EQ(SkyColoursAt(altitude).stars, 1.0);
    }
    for (const double altitude : {0.0, 12.0, 90.0}) {
        EXPECT_EQ(SkyColoursAt(altitude).stars, 0.0);
    }
    EXPECT_EQ(SkyColoursAt(12.0).top, SkyColoursAt(90.0).top);
}

TEST(SkyColours, PassIntoOneAnotherWithoutAJump) {
    for (double altitude = -20.0; altitude < 14.0; altitude += 0.1) {
        const SkyColours now = SkyColoursAt(altitude);
        const SkyColours next = SkyColoursAt(altitude + 0.1);
        for (const auto& [a, b] :
             {std::pair(now.top, next.top), std::pair(now.bottom, next.bottom)}) {
            EXPECT_LE(std::abs(a.red() - b.red()), 3) << altitude;
            EXPECT_LE(std::abs(a.green() - b.green()), 3) << altitude;
            EXPECT_LE(std::abs(a.blue() - b.blue()), 3) << altitude;
        }
    }
}

TEST(SkyColours, DuskIsWarmerThanNightAndDay) {
    const auto warmth = [](double altitude) {
        const QColor bottom = SkyColoursAt(altitude).bottom;
        return bottom.red() - bottom.blue();
    };
    EXPECT_GT(warmth(-1.0), 40);
    EXPECT_LT(warmth(-18.0), 0);
    EXPECT_LT(warmth(30.0), 0);
}

}  // namespace
}  // namespace horavex
