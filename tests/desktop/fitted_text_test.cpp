#include "desktop/face/fitted_text.h"

#include <gtest/gtest.h>

#include <QImage>

namespace horavex {
namespace {

constexpr int kTop = 10;
constexpr int kHeight = 26;

/// The last line of pixels that has ink of a word in an area.
int LowestInkOf(const QString& word, const QString& family) {
    QImage image(120, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QFont font(family);
    font.setPixelSize(21);
    font.setBold(true);
    {
        QPainter painter(&image);
        DrawFitted(painter, QRectF(0, kTop, image.width(), kHeight), Qt::AlignCenter, font, word);
    }
    int lowest = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            lowest = qGray(image.pixel(x, y)) < 200 ? y : lowest;
        }
    }
    return lowest;
}

TEST(FittedText, LettersThatHangDeepStayInTheirArea) {
    EXPECT_LT(LowestInkOf("پیر", "Noto Sans Arabic"), kTop + kHeight);
}

TEST(FittedText, LineWhoseLettersFitStaysWhereItIs) {
    EXPECT_EQ(LowestInkOf("Sunday", "DejaVu Sans"), LowestInkOf("Friday", "DejaVu Sans"));
    EXPECT_LT(LowestInkOf("Monda", "DejaVu Sans"), LowestInkOf("Monday", "DejaVu Sans"));
}

}  // namespace
}  // namespace horavex
