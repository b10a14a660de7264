#include "desktop/face/clock_dial.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>

#include "desktop/face/palette.h"

namespace horavex {

namespace {

// In a dial of radius 100.
constexpr double kRadius = 100.0;
constexpr double kMargin = 1.06;  // of the radius, to the edge of the button

/// The dial's own places in a widget of that size: its middle at 0, its radius kRadius.
void EnterDial(QPainter& painter, const QSize& size) {
    painter.translate(QRectF(QPointF(), QSizeF(size)).center());
    const double scale = std::min(size.width(), size.height()) / 2.0 / (kRadius * kMargin);
    painter.scale(scale, scale);
}

void PaintMarks(QPainter& painter) {
    for (int hour = 0; hour < 12; ++hour) {
        const bool quarter = hour % 3 == 0;
        painter.setPen(
            QPen(quarter ? kGold : kMuted, quarter ? 6.0 : 3.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0.0, quarter ? -76.0 : -80.0), QPointF(0.0, -86.0));
        painter.rotate(30.0);
    }
}

// degrees: clockwise from twelve.
void PaintHand(QPainter& painter, double degrees, double length, const QPen& pen) {
    painter.save();
    painter.rotate(degrees);
    painter.setPen(pen);
    painter.drawLine(QPointF(0.0, 10.0), QPointF(0.0, -length));
    painter.restore();
}

QPen HandPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap};
}

}  // namespace

void ClockDial::ShowTime(QTime time) {
    if (time.hour() != time_.hour() || time.minute() != time_.minute() ||
        accessibleName().isEmpty()) {
        setAccessibleName(QLocale::system().toString(time, QLocale::ShortFormat));
    }
    time_ = time;
    update();
}

// What stands still is painted once for its size.
const QPixmap& ClockDial::Dial() {
    const double ratio = devicePixelRatioF();
    if (dial_.size() != size() * ratio || dial_.devicePixelRatio() != ratio) {
        dial_ = QPixmap(size() * ratio);
        dial_.setDevicePixelRatio(ratio);
        dial_.fill(Qt::transparent);
        QPainter painter(&dial_);
        painter.setRenderHint(QPainter::Antialiasing);
        EnterDial(painter, size());
        painter.setPen(QPen(kGold, 4.0));
        painter.setBrush(kSkyBottom);
        painter.drawEllipse(QPointF(0.0, 0.0), kRadius - 4.0, kRadius - 4.0);
        PaintMarks(painter);
    }
    return dial_;
}

void ClockDial::PaintFace(QPainter& painter) {
    painter.drawPixmap(0, 0, Dial());
    EnterDial(painter, size());
    const double minutes = time_.minute() + time_.second() / 60.0;
    PaintHand(painter, 30.0 * (time_.hour() % 12) + minutes / 2.0, 46.0, HandPen(kCream, 9.0));
    PaintHand(painter, 6.0 * minutes, 70.0, HandPen(kCream, 6.0));
    PaintHand(painter, 6.0 * time_.second(), 76.0, HandPen(kGold, 2.5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGold);
    painter.drawEllipse(QPointF(0.0, 0.0), 6.0, 6.0);
}

}  // namespace horavex
