#include "desktop/documents/drawing_steps.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/documents/picture_file.h"
#include "desktop/form_window/twips.h"

namespace horavex {

namespace {

QColor ColourOf(const Colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

QPen PenOf(const Pen& pen) {
    QPen made(ColourOf(pen.colour), pen.width);
    made.setCosmetic(true);  // its width is in pixels, whatever the scale
    return made;
}

QPointF PointOf(const Point& point) {
    return {point.x, point.y};
}

/// Draws one step in a painter that measures in twips.
class StepPainter {
public:
    explicit StepPainter(QPainter& painter) : painter_(painter) {}

    void operator()(const LineStep& line) const {
        painter_.setPen(PenOf(line.pen));
        painter_.drawLine(PointOf(line.from), PointOf(line.to));
    }

    void operator()(const FilledCircleStep& circle) const {
        painter_.setPen(PenOf(circle.pen));
        painter_.setBrush(ColourOf(circle.fill));
        painter_.drawEllipse(PointOf(circle.centre), circle.radius, circle.radius);
    }

    void operator()(const PolygonStep& polygon) const {
        QPolygonF corners;
        for (const Point& corner : polygon.corners) {
            corners << PointOf(corner);
        }
        painter_.setPen(PenOf(polygon.pen));
        painter_.setBrush(ColourOf(polygon.fill));
        painter_.drawPolygon(corners);
    }

    // Texts keep the size of the window's font: only their place is scaled.
    void operator()(const TextStep& text) const {
        const QPointF at = painter_.transform().map(PointOf(text.at));
        painter_.save();
        painter_.resetTransform();
        painter_.setPen(ColourOf(text.colour));
        painter_.drawText(at + QPointF(0.0, painter_.fontMetrics().ascent()),
                          QString::fromStdString(text.text));
        painter_.restore();
    }

    void operator()(const PictureStep& picture) const {
        const QPixmap pixmap = PictureAt(picture.name);
        painter_.drawPixmap(QRectF(picture.at.x, picture.at.y, picture.width, picture.height),
                            pixmap, pixmap.rect());
    }

private:
    QPainter& painter_;
};

}  // namespace

void DrawSteps(QPainter& painter, const QRectF& target, const QSizeF& twips,
               const Drawing& drawing) {
    if (twips.isEmpty() || drawing.empty()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / twips.width(), target.height() / twips.height());
    for (const DrawingStep& step : drawing) {
        std::visit(StepPainter(painter), step);
    }
    painter.restore();
}

}  // namespace horavex
