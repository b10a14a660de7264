// The window of a month, in every language: its longest month with a note stands in it whole.

#include <QTableWidget>
#include <algorithm>

#include "desktop/shots/scenes.h"
#include "support/shipped_languages.h"

namespace horavex {
namespace {

struct MonthRowsTest : testing::TestWithParam<std::string> {};

TEST_P(MonthRowsTest, HoldThirtyOneDays) {
    const auto scene = std::ranges::find(Scenes(), "month-turn", &Scene::name);
    ASSERT_NE(scene, Scenes().end());
    int room = 0;
    Stage stage(GetParam(), scene->setting, [&](const std::vector<QWidget*>& windows) {
        const auto* table = windows.back()->findChild<QTableWidget*>("grdMonth");
        EXPECT_EQ(table->rowCount(), 31);
        windows.back()->resize(960, 824);  // which the screen of the tests has no room for
        QApplication::processEvents();
        room = table->viewport()->height();
    });
    scene->play(stage);
    EXPECT_GE(room, 31 * 20);
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, MonthRowsTest, testing::ValuesIn(kShippedLanguages),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace horavex
