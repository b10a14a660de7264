#pragma once

#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "sky/day_sky.h"

namespace horavex {

/// The way of the sun over the day from midnight to midnight, with the horizon, the prayers as
/// marks on it, and the moon where it stands. The sun itself stands where it is now; below the
/// horizon a small light goes on in its place.
class DayArc : public QWidget {
public:
    using QWidget::QWidget;

    void ShowSky(std::shared_ptr<const DaySky> sky);

    /// parts: where the prayers stand, of the day; nothing for one that does not come. next: the
    /// one to light up.
    void ShowPrayers(const std::vector<std::optional<double>>& parts, std::size_t next);

    /// A point of the arc. dayPart: 0 to 1.
    QPointF PointAt(double dayPart) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF Field() const;
    double Height(double altitude) const;
    QPolygonF Way(double from, double to) const;
    void PaintGround(QPainter& painter) const;
    void PaintWay(QPainter& painter) const;
    void PaintMarks(QPainter& painter) const;
    void PaintMoon(QPainter& painter) const;
    void PaintNow(QPainter& painter) const;

    std::shared_ptr<const DaySky> sky_;
    double lowest_ = 0.0;   // at the lower edge
    double highest_ = 0.0;  // at the upper one
    std::vector<std::optional<double>> prayers_;
    std::size_t next_ = 0;
};

}  // namespace horavex
