// Where the controls of a window stand beside and below each other, in every language.

#include <QWidget>
#include <algorithm>

#include "desktop/shots/scenes.h"
#include "support/shipped_languages.h"

namespace horavex {
namespace {

class WindowColumnsTest : public testing::TestWithParam<std::string> {
protected:
    /// Plays a scene of the language and looks at its window.
    static void LookAt(const char* name, const std::function<void(const QWidget&)>& look) {
        const auto scene = std::ranges::find(Scenes(), name, &Scene::name);
        ASSERT_NE(scene, Scenes().end());
        Stage stage(GetParam(), scene->setting,
                    [&](const std::vector<QWidget*>& windows) { look(*windows.back()); });
        scene->play(stage);
    }

    static QPoint PlaceOf(const QWidget& window, const char* control) {
        return window.findChild<QWidget*>(control)->mapTo(&window, QPoint());
    }
};

TEST_P(WindowColumnsTest, LongitudeAndLatitudeOfACityShareTheirColumns) {
    LookAt("distance", [](const QWidget& window) {
        const auto x = [&](const char* control) { return PlaceOf(window, control).x(); };
        EXPECT_EQ(x("txtMinALong"), x("txtMinALat"));
        EXPECT_EQ(x("txtSecALong"), x("txtSecALat"));
        EXPECT_EQ(x("txtSecBLong"), x("txtSecBLat"));
        if (window.layoutDirection() == Qt::LeftToRight) {
            EXPECT_EQ(x("CityAEast"), x("CityANorth"));
        }
    });
}

TEST_P(WindowColumnsTest, ButtonThatClosesTheMoonIsTheLastOfAll) {
    LookAt("moon-1", [](const QWidget& window) {
        EXPECT_GT(PlaceOf(window, "cmdClose").y(), PlaceOf(window, "cmdSky").y());
        EXPECT_EQ(PlaceOf(window, "cmdClose").y(), PlaceOf(window, "Command2").y());
    });
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, WindowColumnsTest, testing::ValuesIn(kShippedLanguages),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace horavex
