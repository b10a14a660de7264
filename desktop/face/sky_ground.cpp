#include "desktop/face/sky_ground.h"

#include <QLinearGradient>
#include <utility>

#include "desktop/face/palette.h"
#include "desktop/face/sky_colours.h"
#include "desktop/face/star_field.h"
#include "desktop/look/look.h"

namespace horavex {

namespace {

constexpr double kCardCorner = 8.0;  // radius, pixels

}  // namespace

void SkyGround::ShowSun(double altitude) {
    altitude_ = altitude;
    painted_ = {};
}

void SkyGround::Paint(QPainter& painter, const QRect& part, double ratio) {
    const bool isPlain = look::WantsContrast();
    if (std::exchange(isPlain_, isPlain) != isPlain || painted_.isNull() ||
        painted_.devicePixelRatio() != ratio) {
        painted_ = QPixmap(plan_.face.size() * ratio);
        painted_.setDevicePixelRatio(ratio);
        QPainter on(&painted_);
        PaintAll(on);
    }
    const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
    painter.drawPixmap(QRectF(part), painted_, source);
}

void SkyGround::PaintAll(QPainter& painter) const {
    const SkyColours colours = isPlain_ ? PlainSky() : SkyColoursAt(altitude_);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0.0, 0.0, 0.0, plan_.face.height());
    sky.setColorAt(0.0, colours.top);
    sky.setColorAt(1.0, colours.bottom);
    painter.fillRect(plan_.face, sky);
    PaintStars(painter, plan_.stars, colours.stars);
    painter.fillRect(plan_.band, colours.card);
    painter.setPen(isPlain_ ? QPen(EdgeOfFace()) : QPen(Qt::NoPen));
    painter.setBrush(colours.card);
    for (const QRect& card : plan_.cards) {
        painter.drawRoundedRect(card, kCardCorner, kCardCorner);
    }
    painter.setPen(EdgeOfFace());
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(plan_.face).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace horavex
