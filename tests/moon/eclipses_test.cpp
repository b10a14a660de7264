#include "moon/eclipses.h"

#include <cmath>

#include "base/text.h"
#include "engine/angle.h"
#include "support/test_platform.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

constexpr const char* kCentral = "The Eclipse is Central";
constexpr const char* kUmbral = "The Eclipse was an umbral one";
constexpr const char* kPenumbral = "The Eclipse was a penumbral one";
constexpr const char* kNorthern = "The Eclipse is visible in the Northern Hemisphere";
constexpr const char* kSouthern = "The Eclipse is visible in the Southern Hemisphere";

struct EclipsesTest : testing::Test {
    EclipsesTest() { HoravexMainForm->txtTimeZone.SetText("+0.00"); }

    void Year(int year) { platform.clock.Set(DateSerial(year, 7, 1)); }

    TestPlatform platform;
};

TEST_F(EclipsesTest, LunationOfExactly036PassesTheNodeTest) {
    EXPECT_TRUE(NearNode(0.36));
    EXPECT_TRUE(NearNode(-0.36));
    EXPECT_FALSE(NearNode(std::nextafter(0.36, 1.0)));
    EXPECT_FALSE(NearNode(std::nextafter(-0.36, -1.0)));
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
    Year(2001);
    EXPECT_EQ(ListSolarEclipses(),
              "25 December 2000  ,  17hrs 37min" + Crlf + "24 January 2001  ,  12hrs 47min" + Crlf +
                  "21 June 2001  ,  12hrs 5min" + Crlf + "14 December 2001  ,  20hrs 54min" + Crlf);
}

// The Moon was eclipsed on 9 January, 5 July and 30 December 2001; November is a miss.
TEST_F(EclipsesTest, LunarListOf2001) {
    Year(2001);
    EXPECT_EQ(ListLunarEclipses(), "9 January 2001  ,  20hrs 22min" + Crlf +
                                       "5 July 2001  ,  14hrs 57min" + Crlf +
                                       "30 November 2001  ,  21hrs 9min" + Crlf +
                                       "30 December 2001  ,  10hrs 30min" + Crlf);
}

TEST_F(EclipsesTest, LunarTableHoldsTheListedRows) {
    Year(2001);
    ListLunarEclipses();
    EXPECT_THAT(LunarEclipseRows[0], MatchesRegex("9 January 2001  ,  20hrs [0-9]+min"));
    EXPECT_EQ(LunarEclipseRows[13], "");
    EXPECT_EQ(SolarEclipseRows[0], "");
}

TEST_F(EclipsesTest, ClassifiedSolarEntryIsWrittenAgainWithOneBlankBehindTheComma) {
    Year(2001);
    const std::string listed = ListSolarEclipses();
    EXPECT_THAT(listed, HasSubstr("21 June 2001  ,  "));
    EXPECT_THAT(SolarEclipseRows[6], MatchesRegex("21 June 2001  , [0-9]+hrs [0-9]+min"));
}

TEST_F(EclipsesTest, EntriesWithoutACandidateStayButTheFirst) {
    SolarEclipseRows[0] = "old";
    SolarEclipseRows[3] = "old";
    LunarEclipseRows[0] = "old";
    Year(2001);
    ListSolarEclipses();
    EXPECT_EQ(SolarEclipseRows[3], "old");
    EXPECT_NE(SolarEclipseRows[0], "old");
    EXPECT_EQ(LunarEclipseRows[0], "");
}

TEST_F(EclipsesTest, ListingTwiceGivesTheSame) {
    Year(2026);
    const std::string first = ListLunarEclipses();
    EXPECT_EQ(ListLunarEclipses(), first);
}

TEST_F(EclipsesTest, GammaOnTheLimitIsStillAnEclipse) {
    EXPECT_TRUE(IsEclipse({1.5433 + 0.01, 0.01}));
    EXPECT_TRUE(IsEclipse({-1.5433 - 0.01, 0.01}));
    EXPECT_FALSE(IsEclipse({std::nextafter(1.5433 + 0.01, 2.0), 0.01}));
}

TEST_F(EclipsesTest, CandidateThatMissesStaysListed) {
    Year(2001);
    EXPECT_THAT(ListSolarEclipses(), HasSubstr("24 January 2001"));
    const Lunation january = LunationOf(2001, 1, 0.0);
    const double latitude = january.latitude - 0.02665 * std::sin(january.node);
    EXPECT_FALSE(IsEclipse(GeometryOf(january, latitude)));
    EXPECT_EQ(SolarEclipseRows[1], "24 January 2001  ,  12hrs 47min") << "never written again";
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
                !IsListed(180.0 - at.latitude * 180.0 / 3.14159265358979) &&
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
    Year(found.year);
    SolarEclipseRows.fill("untouched");
    ListSolarEclipses();
    // Its entry repeats the row before, for want of one of its own.
    const auto i = static_cast<std::size_t>(found.index);
    EXPECT_NE(SolarEclipseRows[i], "untouched") << found.year << " " << i;
    EXPECT_EQ(EclipseKindText, kCentral);
}

TEST_F(EclipsesTest, SolarEclipsesAreAlwaysCentralOverTwoCenturies) {
    for (int year = 1900; year <= 2100; ++year) {
        Year(year);
        ListSolarEclipses();
        EXPECT_EQ(EclipseKindText, kCentral) << year;
        EXPECT_EQ(EclipseTotalityText, "") << year;
        EXPECT_THAT(EclipseShadowText, testing::AnyOf(kUmbral, kPenumbral)) << year;
        EXPECT_THAT(EclipseHemisphereText, testing::AnyOf(kNorthern, kSouthern)) << year;
    }
}

TEST_F(EclipsesTest, LunarEclipsesLeaveTheirTextsOverTwoCenturies) {
    for (int year = 1900; year <= 2100; ++year) {
        Year(year);
        ListLunarEclipses();
        EXPECT_THAT(EclipseKindText, testing::AnyOf("", kCentral, "The Eclipse is Partial"));
        EXPECT_THAT(EclipseTotalityText, testing::AnyOf("", "The Eclipse is TOTAL"));
        EXPECT_THAT(EclipseShadowText, testing::AnyOf("", kUmbral, kPenumbral)) << year;
    }
}

TEST_F(EclipsesTest, LunarKindFollowsGammaAndThePenumbra) {
    ClassifyLunarEclipse({1.0, 0.01});
    EXPECT_EQ(EclipseKindText, kCentral);
    EXPECT_EQ(EclipseTotalityText, "");
    ClassifyLunarEclipse({1.005, -0.01});
    EXPECT_EQ(EclipseTotalityText, "The Eclipse is TOTAL");
    EXPECT_EQ(EclipseKindText, kCentral) << "the former text is kept";
    ClassifyLunarEclipse({-1.2, 0.0});
    EXPECT_EQ(EclipseKindText, "The Eclipse is Partial");
}

TEST_F(EclipsesTest, ShadowFollowsTheMagnitudes) {
    ClassifyLunarEclipse({1.0, 0.0});
    EXPECT_EQ(EclipseShadowText, kUmbral);
    ClassifyLunarEclipse({1.0128, 0.0});
    EXPECT_EQ(EclipseShadowText, kPenumbral);
    EclipseShadowText = "former";
    ClassifyLunarEclipse({1.6, 0.0});
    EXPECT_EQ(EclipseShadowText, "former");
}

TEST_F(EclipsesTest, HemisphereFollowsTheSignOfGamma) {
    ClassifySolarEclipse({0.5, 0.0});
    EXPECT_EQ(EclipseHemisphereText, kNorthern);
    ClassifySolarEclipse({0.0, 0.0});
    EXPECT_EQ(EclipseHemisphereText, kSouthern);
}

TEST_F(EclipsesTest, SolarKindIsCentralWhateverTheGeometry) {
    for (const double gamma : {0.0, 0.9972, 1.5, -1.5}) {
        for (const double u : {-0.02, 0.004, 0.03}) {
            EclipseKindText.clear();
            ClassifySolarEclipse({gamma, u});
            EXPECT_EQ(EclipseKindText, kCentral);
            EXPECT_EQ(EclipseTotalityText, "");
        }
    }
}

TEST_F(EclipsesTest, ClearingEmptiesTheFourTexts) {
    ClassifyLunarEclipse({1.2, -0.01});
    ClassifyLunarEclipse({1.2, 0.01});
    ClearEclipses();
    EXPECT_EQ(EclipseHemisphereText + EclipseShadowText + EclipseKindText + EclipseTotalityText,
              "");
}

TEST_F(EclipsesTest, YearIsThatOfTheClock) {
    Year(2024);
    EXPECT_THAT(ListSolarEclipses(), HasSubstr("8 April 2024  ,  18hrs"));
    EXPECT_THAT(ListLunarEclipses(), HasSubstr("18 September 2024  ,  2hrs"));
}

}  // namespace
}  // namespace horavex
