#include "desktop/ports/emblem.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>

namespace horavex {

namespace {

const QColor kSky(0x12, 0x2b, 0x4a);
const QColor kGold(0xe3, 0xc0, 0x6c);

QPainterPath Disc(double x, double y, double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

/// Draws itself at any size, round in the middle of what is not square. The golden rim sets it off
/// from a dark panel, the dark sky from a light one.
class EmblemEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const int side = std::min(rect.width(), rect.height());
        painter->translate(QRectF(rect).center());
        painter->scale(side, side);  // a square of side 1
        painter->translate(-0.5, -0.5);
        painter->fillPath(Disc(0.5, 0.5, 0.5), kGold);
        painter->fillPath(Disc(0.5, 0.5, 0.45), kSky);
        painter->fillPath(Disc(0.46, 0.5, 0.33) - Disc(0.57, 0.45, 0.27), kGold);
        painter->fillPath(Disc(0.64, 0.46, 0.075), kGold);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    // Those that are sent over the bus; areas on the display ask for their own.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int size : {16, 22, 24, 32, 48, 64}) {
            sizes << QSize(size, size);
        }
        return sizes;
    }

    QIconEngine* clone() const override { return new EmblemEngine; }
};

}  // namespace

QIcon Emblem() {
    return QIcon(new EmblemEngine);
}

}  // namespace horavex
