#include "moon/eclipses.h"

#include <cmath>

#include "base/text.h"
#include "engine/angle.h"

namespace horavex {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr const char* kCentral = "The Eclipse is Central";
constexpr const char* kUmbral = "The Eclipse was an umbral one";
constexpr const char* kPenumbral = "The Eclipse was a penumbral one";
constexpr const char* kNorthern = "The Eclipse is visible in the Northern Hemisphere";
constexpr const char* kSouthern = "The Eclipse is visible in the Southern Hemisphere";

struct EclipsesTest : testing::Test {
    std::string ListSolar(int year) {
        return ListSolarEclipses(eclipses, static_cast<std::int16_t>(year), 0.0);
    }

    std::string ListLunar(int year) {
        return ListLunarEclipses(eclipses, static_cast<std::int16_t>(year), 0.0);
    }

    Eclipses eclipses;
};

TEST_F(EclipsesTest, LunationOfExactly036PassesTheNodeTest) {
    EXPECT_TRUE(NearNode(0.36));
    EXPECT_TRUE(NearNode(-0.36));
    EXPECT_FALSE(NearNode(std::nextafter(0.36, 1.0)));
    EXPECT_FALSE(NearNode(std::nextafter(-0.36, -1.0)));
}

// By the Five Millennium Canon of Solar Eclipses (NASA, 2006).
TEST_F(EclipsesTest, ShadowPassesTheEarthsMiddleAtThePublishedDistance) {
    struct Published {
        std::int16_t year;
        double day, gamma;
    };
    for (const Published& eclipse : {Published{1999, 2451401.96, 0.5062},
                                     {2017, 2457987.27, 0.4367},
                                     {2023, 2460054.68, -0.3952},
                                     {2024, 2460409.26, 0.3431}}) {
        int found = 0;
        for (std::int16_t i = 0; i < 13; ++i) {
            const Lunation at = LunationOf(eclipse.year, i, 0.0);
            if (std::fabs(at.day - eclipse.day) < 2.0) {
                const double latitude = at.latitude - DegToRad(0.02665) * std::sin(at.node);
                EXPECT_NEAR(GeometryOf(at, latitude).gamma, eclipse.gamma, 0.002) << eclipse.year;
                ++found;
            }
        }
        EXPECT_EQ(found, 1) << eclipse.year;
    }
}

TEST_F(EclipsesTest, DistancesBetweenTheBoundsAreNotListed) {
    EXPECT_TRUE(IsListed(13.9));
    EXPECT_FALSE(IsListed(std::nextafter(13.9, 14.0)));
    EXPECT_FALSE(IsListed(std::nextafter(21.0, 20.0)));
    EXPECT_TRUE(IsListed(21.0));
    EXPECT_TRUE(IsListed(-170.0));
}

// The Sun was eclipsed on 25 December 2000, 21 June and 14 December 2001; January is a miss.
TEST_F(EclipsesTest, SolarListOf2001) {
    EXPECT_EQ(ListSolar(2001),
              "25 December 2000  ,  17hrs 37min" + Crlf + "24 January 2001  ,  12hrs 47min" + Crlf +
                  "21 June 2001  ,  12hrs 5min" + Crlf + "14 December 2001  ,  20hrs 54min" + Crlf);
}

// The Moon was eclipsed on 9 January, 5 July and 30 December 2001; November is a miss.
TEST_F(EclipsesTest, LunarListOf2001) {
    EXPECT_EQ(ListLunar(2001), "9 January 2001  ,  20hrs 22min" + Crlf +
                                   "5 July 2001  ,  14hrs 57min" + Crlf +
                                   "30 November 2001  ,  21hrs 9min" + Crlf +
                                   "30 December 2001  ,  10hrs 30min" + Crlf);
}

TEST_F(EclipsesTest, LunarTableHoldsTheListedRows) {
    ListLunar(2001);
    EXPECT_THAT(eclipses.LunarEclipseRows[0], MatchesRegex("9 January 2001  ,  20hrs [0-9]+min"));
    EXPECT_EQ(eclipses.LunarEclipseRows[13], "");
    EXPECT_EQ(eclipses.SolarEclipseRows[0], "");
}

TEST_F(EclipsesTest, ClassifiedSolarEntryIsWrittenAgainWithOneBlankBehindTheComma) {
    const std::string listed = ListSolar(2001);
    EXPECT_THAT(listed, HasSubstr("21 June 2001  ,  "));
    EXPECT_THAT(eclipses.SolarEclipseRows[6], MatchesRegex("21 June 2001  , [0-9]+hrs [0-9]+min"));
}

TEST_F(EclipsesTest, EntriesWithoutACandidateStayButTheFirst) {
    eclipses.SolarEclipseRows[0] = "old";
    eclipses.SolarEclipseRows[3] = "old";
    eclipses.LunarEclipseRows[0] = "old";
    ListSolar(2001);
    EXPECT_EQ(eclipses.SolarEclipseRows[3], "old");
    EXPECT_NE(eclipses.SolarEclipseRows[0], "old");
    EXPECT_EQ(eclipses.LunarEclipseRows[0], "");
}

TEST_F(EclipsesTest, ListingTwiceGivesTheSame) {
    const std::string first = ListLunar(2026);
    EXPECT_EQ(ListLunar(2026), first);
}

TEST_F(EclipsesTest, ListedDaysAreTheRowsOfTheLists) {
    EXPECT_THAT(ListedSolarDays(2001),
                ElementsAre(DoubleNear(2451904.2347, 1e-3), DoubleNear(2451934.0333, 1e-3),
                            DoubleNear(2452082.0037, 1e-3), DoubleNear(2452258.3712, 1e-3)));
    EXPECT_THAT(ListedLunarDays(2001),
                ElementsAre(DoubleNear(2451919.3488, 1e-3), DoubleNear(2452096.1231, 1e-3),
                            DoubleNear(2452244.3814, 1e-3), DoubleNear(2452273.9378, 1e-3)));
}

TEST_F(EclipsesTest, GammaOnTheLimitIsStillAnEclipse) {
    EXPECT_TRUE(IsEclipse({1.5433 + 0.01, 0.01}));
    EXPECT_TRUE(IsEclipse({-1.5433 - 0.01, 0.01}));
    EXPECT_FALSE(IsEclipse({std::nextafter(1.5433 + 0.01, 2.0), 0.01}));
}

TEST_F(EclipsesTest, CandidateThatMissesStaysListed) {
    EXPECT_THAT(ListSolar(2001), HasSubstr("24 January 2001"));
    const Lunation january = LunationOf(2001, 1, 0.0);
    const double latitude = january.latitude - 0.02665 * std::sin(january.node);
    EXPECT_FALSE(IsEclipse(GeometryOf(january, latitude)));
    EXPECT_EQ(eclipses.SolarEclipseRows[1], "24 January 2001  ,  12hrs 47min")
        << "never written again";
}

/// The first twelfth of 1900 to 2100 whose eclipse is classified without a row; 0 for none.
struct Unlisted {
    int year = 0;
    std::int16_t index = 0;
};

Unlisted FindUnlisted(double offset) {
    for (int year = 1900; year <= 2100; ++year) {
        for (std::int16_t i = 0; i < 13; ++i) {
            const Lunation at = LunationOf(static_cast<std::int16_t>(year), i, offset);
            const double latitude = at.latitude - 0.02665 * std::sin(at.node);
            if (NearNode(std::sin(at.latitude)) &&
                !IsListed(180.0 - at.latitude * 180.0 / kSeriesPi) &&
                IsEclipse(GeometryOf(at, latitude))) {
                return {year, i};
            }
        }
    }
    return {};
}

TEST_F(EclipsesTest, UnlistedLunationStillWritesTheTexts) {
    const Unlisted found = FindUnlisted(0.0);
    ASSERT_NE(found.year, 0);
    eclipses.SolarEclipseRows.fill("untouched");
    ListSolar(found.year);
    // Its entry repeats the row before, for want of one of its own.
    const auto i = static_cast<std::size_t>(found.index);
    EXPECT_NE(eclipses.SolarEclipseRows[i], "untouched") << found.year << " " << i;
    EXPECT_EQ(eclipses.EclipseKindText, kCentral);
}

TEST_F(EclipsesTest, SolarEclipsesAreAlwaysCentralOverTwoCenturies) {
    for (int year = 1900; year <= 2100; ++year) {
        ListSolar(year);
        EXPECT_EQ(eclipses.EclipseKindText, kCentral) << year;
        EXPECT_EQ(eclipses.EclipseTotalityText, "") << year;
        EXPECT_THAT(eclipses.EclipseShadowText, testing::AnyOf(kUmbral, kPenumbral)) << year;
        EXPECT_THAT(eclipses.EclipseHemisphereText, testing::AnyOf(kNorthern, kSouthern)) << year;
    }
}

TEST_F(EclipsesTest, LunarEclipsesLeaveTheirTextsOverTwoCenturies) {
    for (int year = 1900; year <= 2100; ++year) {
        ListLunar(year);
        EXPECT_THAT(eclipses.EclipseKindText,
                    testing::AnyOf("", kCentral, "The Eclipse is Partial"));
        EXPECT_THAT(eclipses.EclipseTotalityText, testing::AnyOf("", "The Eclipse is TOTAL"));
        EXPECT_THAT(eclipses.EclipseShadowText, testing::AnyOf("", kUmbral, kPenumbral)) << year;
    }
}

TEST_F(EclipsesTest, LunarKindFollowsGammaAndThePenumbra) {
    ClassifyLunarEclipse({1.0, 0.01}, eclipses);
    EXPECT_EQ(eclipses.EclipseKindText, kCentral);
    EXPECT_EQ(eclipses.EclipseTotalityText, "");
    ClassifyLunarEclipse({1.005, -0.01}, eclipses);
    EXPECT_EQ(eclipses.EclipseTotalityText, "The Eclipse is TOTAL");
    EXPECT_EQ(eclipses.EclipseKindText, kCentral) << "the former text is kept";
    ClassifyLunarEclipse({-1.2, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseKindText, "The Eclipse is Partial");
}

TEST_F(EclipsesTest, ShadowFollowsTheMagnitudes) {
    ClassifyLunarEclipse({1.0, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseShadowText, kUmbral);
    ClassifyLunarEclipse({1.0128, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseShadowText, kPenumbral);
    eclipses.EclipseShadowText = "former";
    ClassifyLunarEclipse({1.6, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseShadowText, "former");
}

TEST_F(EclipsesTest, HemisphereFollowsTheSignOfGamma) {
    ClassifySolarEclipse({0.5, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseHemisphereText, kNorthern);
    ClassifySolarEclipse({0.0, 0.0}, eclipses);
    EXPECT_EQ(eclipses.EclipseHemisphereText, kSouthern);
}

TEST_F(EclipsesTest, SolarKindIsCentralWhateverTheGeometry) {
    for (const double gamma : {0.0, 0.9972, 1.5, -1.5}) {
        for (const double u : {-0.02, 0.004, 0.03}) {
            eclipses.EclipseKindText.clear();
            ClassifySolarEclipse({gamma, u}, eclipses);
            EXPECT_EQ(eclipses.EclipseKindText, kCentral);
            EXPECT_EQ(eclipses.EclipseTotalityText, "");
        }
    }
}

TEST_F(EclipsesTest, ClearingEmptiesTheFourTexts) {
    ClassifyLunarEclipse({1.2, -0.01}, eclipses);
    ClassifyLunarEclipse({1.2, 0.01}, eclipses);
    ClearEclipses(eclipses);
    EXPECT_EQ(eclipses.EclipseHemisphereText + eclipses.EclipseShadowText +
                  eclipses.EclipseKindText + eclipses.EclipseTotalityText,
              "");
}

TEST_F(EclipsesTest, ListsOf2024NameItsEclipses) {
    EXPECT_THAT(ListSolar(2024), HasSubstr("8 April 2024  ,  18hrs"));
    EXPECT_THAT(ListLunar(2024), HasSubstr("18 September 2024  ,  2hrs"));
}

}  // namespace
}  // namespace horavex
