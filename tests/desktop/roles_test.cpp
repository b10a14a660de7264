#include "desktop/look/roles.h"

#include <gtest/gtest.h>

#include <QWidget>
#include <array>
#include <cmath>

#include "desktop/look/contrast.h"
#include "desktop/look/look.h"
#include "desktop/look/window_inks.h"
#include "desktop/scoped_look.h"
#include "forms/inks.h"

namespace horavex::look {
namespace {

constexpr double kText = 4.5;   // the least contrast of what is read
constexpr double kShape = 3.0;  // and of what is seen

class EveryTheme : public testing::TestWithParam<Theme> {
protected:
    static void ExpectOn(std::initializer_list<Role> grounds, Role role, double least) {
        for (const Role ground : grounds) {
            const QColor above = ColourOf(GetParam(), role);
            const QColor below = ColourOf(GetParam(), ground);
            EXPECT_GE(Contrast(above, below), least)
                << above.name().toStdString() << " on " << below.name().toStdString();
        }
    }

    /// Inks as a window of this theme has them.
    static void ExpectInkOn(std::initializer_list<Colour> grounds, const Colour& ink,
                            double least) {
        const Inks inks = WindowInks(PaletteOf(GetParam()));
        for (const Colour& ground : grounds) {
            EXPECT_GE(Contrast(inks(ink), inks(ground)), least)
                << inks(ink).name().toStdString() << " on " << inks(ground).name().toStdString();
        }
    }
};

TEST_P(EveryTheme, TextsAreReadableOnEveryGround) {
    const auto grounds = {Role::kGround, Role::kField, Role::kSetOff, Role::kRaised};
    ExpectOn(grounds, Role::kText, kText);
    ExpectOn(grounds, Role::kMuted, kText);
    ExpectOn({Role::kMarked}, Role::kMarkedText, kText);
    ExpectOn({Role::kGround, Role::kField}, Role::kLink, kText);
}

TEST_P(EveryTheme, MarksEdgesAndWhatIsOffCanBeTold) {
    const auto grounds = {Role::kGround, Role::kField, Role::kRaised};
    ExpectOn(grounds, Role::kMarked, kShape);
    ExpectOn(grounds, Role::kEdge, kShape);
    ExpectOn(grounds, Role::kWarning, kShape);
    ExpectOn(grounds, Role::kTrouble, kShape);
    ExpectOn(grounds, Role::kOff, kShape);
}

TEST_P(EveryTheme, IsKnownByItsPalette) {
    EXPECT_EQ(ThemeOf(PaletteOf(GetParam())), GetParam());
}

TEST_P(EveryTheme, WhatIsOnMapsCanBeTold) {
    for (const Colour& ink : {ink::kMark, ink::kAccent, ink::kCoast}) {
        ExpectInkOn({ink::kSea, ink::kLand}, ink, kShape);
    }
    for (const Colour& kind : ink::kYallop) {
        ExpectInkOn({kind}, ink::kOutline, kShape);
    }
    ExpectInkOn({ink::kMoonSetsFirst, ink::kBeforeNewMoon, ink::kUnjudged}, ink::kOutline, kShape);
    ExpectInkOn({ink::kDegrees}, ink::kOutline, kShape);
}

/// Lightness and the two pairs of opposite colours, in which equal distances look alike.
std::array<double, 3> Seen(const QColor& colour) {
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const double red = linear(colour.redF());
    const double green = linear(colour.greenF());
    const double blue = linear(colour.blueF());
    const double x = std::cbrt((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.95047);
    const double y = std::cbrt(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = std::cbrt((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.08883);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double Difference(const QColor& one, const QColor& other) {
    const auto a = Seen(one);
    const auto b = Seen(other);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST_P(EveryTheme, ClassesOfACrescentCanBeToldApart) {
    constexpr double kSideBySide = 11.0;
    const Inks inks = WindowInks(PaletteOf(GetParam()));
    std::vector<Colour> kinds(std::begin(ink::kYallop), std::end(ink::kYallop));
    kinds.insert(kinds.end(), {ink::kMoonSetsFirst, ink::kBeforeNewMoon, ink::kUnjudged});
    for (auto one = kinds.begin(); one != kinds.end(); ++one) {
        for (auto other = std::next(one); other != kinds.end(); ++other) {
            EXPECT_GE(Difference(inks(*one), inks(*other)), kSideBySide)
                << inks(*one).name().toStdString() << " and " << inks(*other).name().toStdString();
        }
    }
}

TEST_P(EveryTheme, WhatIsOnCompassAndMoonCanBeTold) {
    for (const Colour& ink : {ink::kMark, ink::kSunRim, ink::kMoonRim, kBlack}) {
        ExpectInkOn({kWhite}, ink, kShape);
    }
    ExpectInkOn({ink::kMoonDark}, ink::kMoonLit, kShape);
    ExpectInkOn({ink::kMoonDown}, ink::kMoonUp, kShape);
    ExpectInkOn({kWhite}, ink::kScale, kText);
    EXPECT_GE(Contrast(WindowInks(PaletteOf(GetParam()))(ink::kScale),
                       ColourOf(GetParam(), Role::kGround)),
              kText);
}

TEST_P(EveryTheme, WhatMovesOverADayCanBeTold) {
    for (const Colour& ink : {ink::kSunPath, ink::kMoonPath, ink::kNow, ink::kHorizon}) {
        ExpectInkOn({ink::kDay, ink::kCivil, ink::kNautical, ink::kAstronomical, ink::kNight}, ink,
                    kShape);
    }
}

TEST_P(EveryTheme, ChartOfAYearIsReadable) {
    ExpectInkOn({ink::kChartPaper}, ink::kChartText, kText);
    ExpectInkOn({ink::kChartNight, ink::kDawn, ink::kDusk}, ink::kOnDark, kText);
    ExpectInkOn({ink::kMorning, ink::kNoon, ink::kAfternoon}, ink::kOnLight, kText);
    ExpectInkOn({ink::kOnDark}, ink::kToday, kShape);
}

std::string NameOf(const testing::TestParamInfo<Theme>& theme) {
    constexpr std::array kNames = {"Light", "Dark", "Contrast", "LightContrast"};
    return kNames.at(static_cast<std::size_t>(theme.param));
}

INSTANTIATE_TEST_SUITE_P(Themes, EveryTheme,
                         testing::Values(Theme::kLight, Theme::kDark, Theme::kContrast,
                                         Theme::kLightContrast),
                         NameOf);

TEST(Inks, OnPaperAreReadableAndTheirOwn) {
    for (const Colour& text : {ink::kPageText, ink::kAccent}) {
        EXPECT_GE(Contrast(OnPaper(text), Qt::white), kText);
        EXPECT_GE(Contrast(OnPaper(text), OnPaper(ink::kPageShade)), kText);
    }
    EXPECT_GE(Contrast(OnPaper(ink::kBar), OnPaper(ink::kAccent)), kText);
    EXPECT_GE(Contrast(OnPaper(ink::kEmblemLight), OnPaper(ink::kEmblemSky)), kShape);
    EXPECT_EQ(OnPaper(ink::kMark), QColor(190, 30, 30));
}

TEST(Inks, SkiesMoonsAndClassesAreTheSameOnDarkGround) {
    const Inks inks = WindowInks(PaletteOf(Theme::kDark));
    std::vector<Colour> same = {ink::kMoonLit,   ink::kMoonDark, ink::kMoonSetsFirst, ink::kSunPath,
                                ink::kNow,       ink::kDay,      ink::kNight,         ink::kDawn,
                                ink::kNoon,      ink::kOnLight,  ink::kOnDark,        ink::kToday,
                                ink::kOutline,   ink::kSun,      ink::kSunRim,        ink::kHorizon,
                                ink::kChartNight};
    same.insert(same.end(), std::begin(ink::kYallop), std::end(ink::kYallop));
    for (const Colour& colour : same) {
        EXPECT_EQ(inks(colour), OnPaper(colour));
    }
}

TEST(ThemeOf, SeesThroughTheColoursOfADesktop) {
    EXPECT_EQ(ThemeOf(QPalette(QColor(45, 48, 53))), Theme::kDark);
    EXPECT_EQ(ThemeOf(QPalette(QColor(239, 239, 239))), Theme::kLight);
    EXPECT_EQ(ThemeOf(QPalette(Qt::black)), Theme::kContrast);
    EXPECT_EQ(ThemeOf(QPalette(Qt::white)), Theme::kLightContrast);
    QPalette unused = PaletteOf(Theme::kContrast);
    unused.setCurrentColorGroup(QPalette::Disabled);
    EXPECT_EQ(ThemeOf(unused), Theme::kContrast);
}

TEST(Look, DressesTheWindowsOfTheProgram) {
    const ScopedLook look(Theme::kDark);
    EXPECT_EQ(CurrentTheme(), Theme::kDark);
    const QPalette worn = QWidget().palette();
    EXPECT_EQ(worn.color(QPalette::Window), ColourOf(Theme::kDark, Role::kGround));
    EXPECT_EQ(worn.color(QPalette::Disabled, QPalette::Text), ColourOf(Theme::kDark, Role::kOff));
    Use(Theme::kContrast);
    EXPECT_EQ(CurrentTheme(), Theme::kContrast);
}

TEST(Look, KnowsThemesByTheirNames) {
    EXPECT_EQ(ThemeNamed("light"), Theme::kLight);
    EXPECT_EQ(ThemeNamed("dark"), Theme::kDark);
    EXPECT_EQ(ThemeNamed("contrast"), Theme::kContrast);
    EXPECT_EQ(ThemeNamed("light-contrast"), Theme::kLightContrast);
    EXPECT_EQ(ThemeNamed(""), Theme::kLight);
}

}  // namespace
}  // namespace horavex::look
