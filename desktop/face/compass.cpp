#include "desktop/face/compass.h"

#include <QLocale>
#include <QPainter>
#include <cmath>

#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/face/sky_colours.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

constexpr int kTypeSize = 17;          // pixels
constexpr double kWordsHeight = 24.0;  // pixels

// The card is drawn in a circle of radius 100.
constexpr double kRadius = 100.0;

void PaintCard(QPainter& painter) {
    painter.setPen(QPen(EdgeOfFace(), 2.5));
    painter.setBrush(kSkyBottom);
    painter.drawEllipse(QPointF(0.0, 0.0), kRadius - 2.0, kRadius - 2.0);
    for (int mark = 1; mark < 24; ++mark) {  // north has a sign of its own
        painter.rotate(15.0);
        const bool main = mark % 6 == 0;
        painter.setPen(QPen(main ? kCream : kMuted, main ? 3.5 : 2.0));
        painter.drawLine(QPointF(0.0, main ? -78.0 : -86.0), QPointF(0.0, -92.0));
    }
    painter.rotate(15.0);
}

void PaintNorth(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(kCream);
    painter.drawPolygon(QPolygonF({{0.0, -90.0}, {10.0, -68.0}, {-10.0, -68.0}}));
}

// A needle that ends in a cube with a golden band.
void PaintNeedle(QPainter& painter, double degrees) {
    painter.rotate(degrees);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGold);
    painter.drawPolygon(QPolygonF({{0.0, -62.0}, {9.0, 0.0}, {-9.0, 0.0}}));
    painter.setBrush(kMuted);
    painter.drawPolygon(QPolygonF({{0.0, 52.0}, {9.0, 0.0}, {-9.0, 0.0}}));
    painter.setPen(QPen(kGold, 2.0));
    painter.setBrush(Qt::black);
    painter.drawRect(QRectF(-13.0, -76.0, 26.0, 24.0));
    painter.setPen(QPen(kGold, 4.0));
    painter.drawLine(QPointF(-12.0, -68.0), QPointF(12.0, -68.0));
    painter.setPen(QPen(kSkyBottom, 2.0));
    painter.setBrush(kCream);
    painter.drawEllipse(QPointF(0.0, 0.0), 8.0, 8.0);
}

}  // namespace

std::optional<double> ReadBearing(const QString& text) {
    bool isNumber = false;
    QString pointed = text.trimmed();
    pointed.replace(QChar(u','), QChar(u'.'));
    const double degrees = std::fmod(QLocale::c().toDouble(pointed, &isNumber), 360.0);
    if (!isNumber) {
        return std::nullopt;
    }
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

void Compass::ShowBearing(std::optional<double> degrees) {
    const bool turns = degrees != degrees_;
    degrees_ = degrees;
    if (turns || Words() != accessibleName()) {
        setAccessibleName(Words());
        update();
    }
}

QString Compass::Words() const {
    return degrees_ ? UserText(QString::number(std::lround(*degrees_) % 360)) + QChar(0xB0)
                    : QString();
}

void Compass::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min<double>(width(), height() - kWordsHeight);
    painter.setPen(kCream);
    DrawFitted(painter, QRectF(0.0, height() - kWordsHeight, width(), kWordsHeight),
               Qt::AlignCenter, FaceFont(kTypeSize), Words());
    painter.translate(width() / 2.0, side / 2.0);
    painter.scale(side / 2.0 / kRadius, side / 2.0 / kRadius);
    PaintCard(painter);
    PaintNorth(painter);
    if (degrees_) {
        PaintNeedle(painter, *degrees_);
    }
}

}  // namespace horavex
