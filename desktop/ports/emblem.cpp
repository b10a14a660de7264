#include "desktop/ports/emblem.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace horavex {

namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};  // pixels

const QColor kSky(0x12, 0x2b, 0x4a);
const QColor kGold(0xe3, 0xc0, 0x6c);

QPainterPath Disc(double x, double y, double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

// In a square of side 1.
QPixmap Drawn(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    painter.fillPath(Disc(0.5, 0.5, 0.49), kSky);
    painter.fillPath(Disc(0.46, 0.5, 0.33) - Disc(0.57, 0.45, 0.27), kGold);
    painter.fillPath(Disc(0.64, 0.46, 0.075), kGold);
    return pixmap;
}

}  // namespace

QIcon Emblem() {
    QIcon icon;
    for (const int size : kSizes) {
        icon.addPixmap(Drawn(size));
    }
    return icon;
}

}  // namespace horavex
