#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <vector>

namespace horavex {

/// What lies behind a face: the sky, its stars, and cards on it. It is painted once for each sky
/// and only copied from then on, since a part of it is wanted with every second.
class SkyGround {
public:
    struct Plan {
        QRect face;
        QRect stars;               // where nothing is written
        QRect band;                // a card from edge to edge
        std::vector<QRect> cards;  // with round corners
    };

    explicit SkyGround(Plan plan) : plan_(std::move(plan)) {}

    /// altitude: of the sun, degrees.
    void ShowSun(double altitude);

    /// ratio: dots of the screen a pixel.
    void Paint(QPainter& painter, const QRect& part, double ratio);

private:
    void PaintAll(QPainter& painter) const;

    Plan plan_;
    double altitude_ = -90.0;  // night until the sky is told
    bool isPlain_ = false;     // as painted, for a desktop that wants contrast
    QPixmap painted_;          // null where the sky has changed
};

}  // namespace horavex
