// The windows of tables and of a long text, in each language, at the usual size and at twice that:
// at the size that they ask a screen for, all of it is to be seen.

#include <QApplication>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>

#include "desktop/form_window/fit_screen.h"
#include "desktop/language_and_size.h"
#include "desktop/shots/scenes.h"
#include "support/shipped_languages.h"

namespace horavex {
namespace {

bool HasWhatScrolls(const Scene& scene) {
    for (const char* window : {"sky-", "month", "moon-help"}) {
        if (scene.name.starts_with(window)) {
            return true;
        }
    }
    return false;
}

class WholeWindowsTest : public testing::TestWithParam<std::tuple<std::string, double>> {
protected:
    WholeWindowsTest() {
        QFont font = usual_;
        font.setPointSizeF(font.pointSizeF() * std::get<1>(GetParam()));
        QApplication::setFont(font);
    }
    ~WholeWindowsTest() override { QApplication::setFont(usual_); }

    template <class Part>
    static void ExpectWhole(const Scene& scene, const QWidget& window) {
        for (const Part* part : window.findChildren<Part*>()) {
            if (part->isVisible()) {
                const std::string name = scene.name + ": " + part->objectName().toStdString();
                EXPECT_EQ(part->horizontalScrollBar()->maximum(), 0) << name;
                EXPECT_EQ(part->verticalScrollBar()->maximum(), 0) << name;
            }
        }
    }

private:
    const QFont usual_ = QApplication::font();
};

TEST_P(WholeWindowsTest, NothingScrollsWhereTheScreenHasRoom) {
    for (const Scene& scene : Scenes()) {
        if (HasWhatScrolls(scene)) {
            Stage stage(std::get<0>(GetParam()), scene.setting,
                        [&](const std::vector<QWidget*>& windows) {
                            QWidget& window = *windows.back();
                            window.resize(window.size().expandedTo(WholeSize(window)));
                            QApplication::processEvents();
                            ExpectWhole<QTableWidget>(scene, window);
                            ExpectWhole<QTextEdit>(scene, window);
                        });
            scene.play(stage);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndTextSizes, WholeWindowsTest,
                         testing::Combine(testing::ValuesIn(kLookedAtLanguages),
                                          testing::Values(1.0, 2.0)),
                         LanguageAndSize);

}  // namespace
}  // namespace horavex
