#include "desktop/look/icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStyle>
#include <QStyleOption>
#include <set>

#include "desktop/look/contrast.h"
#include "desktop/scoped_look.h"

namespace horavex::look {
namespace {

QImage PictureOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(48, 48), 1.0, mode).toImage();
}

/// The colours that are fully there.
std::set<QRgb> ColoursOf(const QImage& picture) {
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (const QColor colour = picture.pixelColor(x, y); colour.alpha() == 255) {
                colours.insert(colour.rgb());
            }
        }
    }
    return colours;
}

QStringList Signs() {
    QStringList signs;
    for (const QString& file : QDir(":/art").entryList()) {
        const QString name = file.chopped(4);
        if (!name.startsWith("horavex")) {
            signs << name;
        }
    }
    return signs;
}

TEST(Icons, SignsAreInTheColourOfTextsOrOfTheirMessage) {
    for (const Theme theme :
         {Theme::kLight, Theme::kDark, Theme::kContrast, Theme::kLightContrast}) {
        const ScopedLook look(theme);
        for (const QString& sign : Signs()) {
            const std::set<QRgb> colours = ColoursOf(PictureOf(IconOf(sign)));
            ASSERT_EQ(colours.size(), 1U) << sign.toStdString();
            EXPECT_GE(Contrast(*colours.begin(), ColourOf(theme, Role::kRaised)), 3.0)
                << sign.toStdString();
        }
        EXPECT_EQ(ColoursOf(PictureOf(IconOf("print"))),
                  std::set{ColourOf(theme, Role::kText).rgb()});
        EXPECT_EQ(ColoursOf(PictureOf(IconOf("critical"))),
                  std::set{ColourOf(theme, Role::kTrouble).rgb()});
    }
}

TEST(Icons, SignOfWhatCannotBeUsedIsFaint) {
    const ScopedLook look(Theme::kLight);
    EXPECT_EQ(ColoursOf(PictureOf(IconOf("play"), QIcon::Disabled)),
              std::set{ColourOf(Theme::kLight, Role::kOff).rgb()});
}

TEST(Icons, SignsAreDrawnInStrokesOfOneWidthOnOneGrid) {
    EXPECT_GE(Signs().size(), 12);
    for (const QString& sign : Signs()) {
        QFile file(":/art/" + sign + ".svg");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray drawing = file.readAll();
        EXPECT_EQ(drawing.count("viewBox=\"0 0 24 24\""), 1) << sign.toStdString();
        EXPECT_EQ(drawing.count("stroke-width=\"2\""), 1) << sign.toStdString();
        EXPECT_EQ(drawing.count("stroke-width"), 1) << sign.toStdString();
        EXPECT_EQ(drawing.count('#'), 0) << sign.toStdString() << " has a colour";
    }
}

TEST(Icons, NameWithoutADrawingHasNone) {
    EXPECT_TRUE(IconOf("nothing").isNull());
}

TEST(Icons, StandInPlaceOfTheToolkitsOwn) {
    const ScopedLook look(Theme::kLight);
    const auto own = [](QStyle::StandardPixmap picture) {
        return PictureOf(QApplication::style()->standardIcon(picture));
    };
    EXPECT_EQ(own(QStyle::SP_MessageBoxWarning), PictureOf(IconOf("warning")));
    EXPECT_EQ(own(QStyle::SP_DirIcon), PictureOf(IconOf("folder")));
}

TEST(Icons, ArrowsGoWithTheDirectionOfReading) {
    QStyleOption option;
    option.direction = Qt::RightToLeft;
    EXPECT_EQ(PictureOf(QApplication::style()->standardIcon(QStyle::SP_ArrowBack, &option)),
              PictureOf(IconOf("forward")));
}

}  // namespace
}  // namespace horavex::look
