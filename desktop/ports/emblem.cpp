#include "desktop/ports/emblem.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>

namespace horavex {

namespace {

constexpr double kSide = 100.0;  // of the square that all is drawn in, whatever its size

/// Two colours of which each can be told from the other and one from any panel.
struct Colours {
    QColor sky;
    QColor light;
};

const Colours kAwake = {QColor(0x12, 0x2b, 0x4a), QColor(0xe3, 0xc0, 0x6c)};
const Colours kQuiet = {QColor(0x3c, 0x42, 0x4a), QColor(0xa9, 0xae, 0xb6)};
const QColor kBar(0xf2, 0x7a, 0x5e);

QPainterPath Disc(double x, double y, double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

QPainterPath Bar(double width) {
    QPainterPath line(QPointF(24.0, 24.0));
    line.lineTo(76.0, 76.0);
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(line);
}

/// Draws itself at any size, round in the middle of what is not square. The light rim sets it off
/// from a dark panel, the dark sky from a light one.
class EmblemEngine : public QIconEngine {
public:
    explicit EmblemEngine(bool isQuiet) : isQuiet_(isQuiet) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const int side = std::min(rect.width(), rect.height());
        painter->translate(QRectF(rect).center());
        painter->scale(side / kSide, side / kSide);
        painter->translate(-kSide / 2.0, -kSide / 2.0);
        Draw(*painter, isQuiet_ ? kQuiet : kAwake);
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

    QIconEngine* clone() const override { return new EmblemEngine(isQuiet_); }

private:
    void Draw(QPainter& painter, const Colours& colours) const {
        painter.fillPath(Disc(50.0, 50.0, 50.0), colours.light);
        painter.fillPath(Disc(50.0, 50.0, 45.0), colours.sky);
        painter.fillPath(Disc(46.0, 50.0, 33.0) - Disc(57.0, 45.0, 27.0), colours.light);
        painter.fillPath(Disc(64.0, 46.0, 7.5), colours.light);
        if (isQuiet_) {
            painter.fillPath(Bar(25.0), colours.sky);
            painter.fillPath(Bar(12.0), kBar);
        }
    }

    bool isQuiet_;
};

}  // namespace

QIcon Emblem() {
    return QIcon(new EmblemEngine(false));
}

QIcon QuietEmblem() {
    return QIcon(new EmblemEngine(true));
}

}  // namespace horavex
