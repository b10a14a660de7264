#include "desktop/face/star_field.h"

#include <random>

#include "desktop/face/palette.h"

namespace horavex {

namespace {

constexpr double kStarsPerPixel = 1.0 / 450.0;  // of the area
constexpr double kLargest = 1.1;                // radius, pixels

}  // namespace

void PaintStars(QPainter& painter, const QRectF& area, double strength) {
    if (strength <= 0.0) {
        return;
    }
    std::minstd_rand random(7);  // a fixed seed: a fixed sky
    const auto part = [&random] {
        return static_cast<double>(random() - std::minstd_rand::min()) / std::minstd_rand::max();
    };
    painter.setPen(Qt::NoPen);
    const auto stars = static_cast<int>(area.width() * area.height() * kStarsPerPixel);
    for (int star = 0; star < stars; ++star) {
        const QPointF place(area.left() + part() * area.width(),
                            area.top() + part() * area.height());
        const double light = part();
        QColor colour = kCream;
        colour.setAlphaF(static_cast<float>(strength * (0.2 + 0.7 * light * light)));
        painter.setBrush(colour);
        const double radius = 0.5 + (kLargest - 0.5) * light * light;
        painter.drawEllipse(place, radius, radius);
    }
}

}  // namespace horavex
