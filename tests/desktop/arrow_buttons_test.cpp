#include "desktop/form_window/arrow_buttons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QShortcut>

namespace horavex {
namespace {

struct ArrowButtonsTest : testing::Test {
    ArrowButtonsTest() {
        back.setProperty("pressedBy", "back");
        on.setProperty("pressedBy", "on");
        QObject::connect(&back, &QPushButton::clicked, [this] { pressed += "back "; });
        QObject::connect(&on, &QPushButton::clicked, [this] { pressed += "on "; });
        BindArrowButtons(window);
    }

    void Press(Qt::Key key) {
        for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
            if (shortcut->key() == QKeySequence(key)) {
                Q_EMIT shortcut->activated();
            }
        }
    }

    QWidget window;
    QPushButton back{&window};
    QPushButton on{&window};
    std::string pressed;
};

TEST_F(ArrowButtonsTest, LeftIsBackAndRightIsOn) {
    Press(Qt::Key_Left);
    Press(Qt::Key_Right);
    EXPECT_EQ(pressed, "back on ");
}

TEST_F(ArrowButtonsTest, WhoReadsFromTheRightGoesOnToTheLeft) {
    window.setLayoutDirection(Qt::RightToLeft);
    Press(Qt::Key_Left);
    EXPECT_EQ(pressed, "on ");
}

TEST(ArrowButtons, WindowWithoutThemKeepsItsKeys) {
    QWidget window;
    QPushButton button(&window);
    BindArrowButtons(window);
    EXPECT_TRUE(window.findChildren<QShortcut*>().isEmpty());
}

}  // namespace
}  // namespace horavex
