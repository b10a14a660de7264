#include "desktop/look/look_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/look/contrast.h"
#include "desktop/look/measures.h"
#include "desktop/scoped_look.h"

namespace horavex::look {
namespace {

TEST(LookStyle, LayoutsThatAskForNothingLieOnTheGrid) {
    QWidget window;
    auto* inner = new QWidget(&window);
    auto* outer = new QVBoxLayout(&window);
    outer->addWidget(inner);
    const QVBoxLayout layout(inner);
    EXPECT_EQ(outer->contentsMargins(),
              QMargins(kWindowMargin, kWindowMargin, kWindowMargin, kWindowMargin));
    EXPECT_EQ(layout.contentsMargins(), QMargins(kMargin, kMargin, kMargin, kMargin));
    EXPECT_EQ(outer->spacing(), kSpacing);
}

TEST(LookStyle, ButtonsOfADialogueAreToldByTheirWordsAlone) {
    const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    EXPECT_TRUE(box.button(QDialogButtonBox::Ok)->icon().isNull());
    EXPECT_TRUE(box.button(QDialogButtonBox::Cancel)->icon().isNull());
}

/// The strongest contrast to the ground of the window in a column of the widget's picture.
double EdgeOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    const QColor ground = widget.palette().color(QPalette::Window);
    double strongest = 1.0;
    for (int x = 0; x < 3; ++x) {
        strongest =
            std::max(strongest, Contrast(picture.pixelColor(x, widget.height() / 2), ground));
    }
    return strongest;
}

TEST(LookStyle, IsNotWornOverAStyleThatMayPaintInColoursOfItsOwn) {
    const auto* worn = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(worn, nullptr);
    EXPECT_EQ(worn->baseStyle()->name(), "fusion");
}

TEST(LookStyle, DefaultButtonHasAnEdgeOfWhatIsMarked) {
    for (const Theme theme : {Theme::kLight, Theme::kDark, Theme::kContrast}) {
        const ScopedLook look(theme);
        QDialog window;
        QPushButton button(&window);
        button.setDefault(true);
        const QImage picture = button.grab().toImage();
        EXPECT_EQ(picture.pixelColor(0, button.height() / 2), ColourOf(theme, Role::kMarked));
    }
}

TEST(LookStyle, EdgesAreSeenOnDarkGround) {
    for (const Theme theme : {Theme::kDark, Theme::kContrast}) {
        const ScopedLook look(theme);
        QWidget window;
        QLineEdit box(&window);
        QPushButton button(&window);
        EXPECT_GE(EdgeOf(box), 3.0);
        EXPECT_GE(EdgeOf(button), 3.0);
    }
}

}  // namespace
}  // namespace horavex::look
