#include "desktop/documents/drawing_steps.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "desktop/documents/picture_file.h"
#include "desktop/form_window/twips.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

QPointF PointOf(const Point& point) {
    return {point.x, point.y};
}

QPolygonF CornersOf(const PolygonStep& polygon) {
    QPolygonF corners;
    for (const Point& corner : polygon.corners) {
        corners << PointOf(corner);
    }
    return corners;
}

/// The share of a text that lies left of its place.
double ShareBefore(Anchor anchor) {
    switch (anchor) {
        case Anchor::kLeft:
            return 0.0;
        case Anchor::kMiddle:
            return 0.5;
        case Anchor::kRight:
            break;
    }
    return 1.0;
}

/// Draws one step in a painter that measures in twips.
class StepPainter {
public:
    StepPainter(QPainter& painter, const Inks& inks) : painter_(painter), inks_(inks) {}

    void operator()(const LineStep& line) const {
        painter_.setPen(PenOf(line.pen));
        painter_.drawLine(PointOf(line.from), PointOf(line.to));
    }

    void operator()(const FilledCircleStep& circle) const {
        painter_.setPen(PenOf(circle.pen));
        painter_.setBrush(inks_(circle.fill));
        painter_.drawEllipse(PointOf(circle.centre), circle.radius, circle.radius);
    }

    void operator()(const PolygonStep& polygon) const {
        painter_.setPen(PenOf(polygon.pen));
        painter_.setBrush(inks_(polygon.fill));
        painter_.drawPolygon(CornersOf(polygon));
    }

    // Texts keep the size of the window's font: only their place is scaled.
    void operator()(const TextStep& text) const {
        const QPointF at = painter_.transform().map(PointOf(text.at));
        painter_.save();
        painter_.resetTransform();
        painter_.setPen(inks_(text.colour));
        if (text.anchor == Anchor::kRight) {
            painter_.setLayoutDirection(Qt::RightToLeft);
        }
        const QString shown = UserText(text.text);
        const QFontMetricsF metrics(painter_.font());
        const double before = ShareBefore(text.anchor) * metrics.horizontalAdvance(shown);
        painter_.drawText(at + QPointF(-before, painter_.fontMetrics().ascent()), shown);
        painter_.restore();
    }

    void operator()(const TextRowStep& row) const {
        const double scale = painter_.transform().m11();
        const auto widthOf = [&](const std::string& text) {
            return painter_.fontMetrics().horizontalAdvance(UserText(text)) / scale;
        };
        for (const TextStep& text : TextsOf(row, widthOf)) {
            (*this)(text);
        }
    }

    void operator()(const PictureStep& picture) const {
        const QPixmap pixmap = PictureAt(picture.name);
        painter_.drawPixmap(QRectF(picture.at.x, picture.at.y, picture.width, picture.height),
                            pixmap, pixmap.rect());
    }

private:
    QPen PenOf(const Pen& pen) const {
        QPen made(inks_(pen.colour), pen.width);
        made.setCosmetic(true);  // its width is in pixels, whatever the scale
        return made;
    }

    QPainter& painter_;
    const Inks& inks_;
};

/// Where one step lies, twips.
struct StepBounds {
    QRectF operator()(const LineStep& line) const {
        return QRectF(PointOf(line.from), PointOf(line.to)).normalized();
    }
    QRectF operator()(const FilledCircleStep& circle) const {
        const QPointF reach(circle.radius, circle.radius);
        return {PointOf(circle.centre) - reach, PointOf(circle.centre) + reach};
    }
    QRectF operator()(const PolygonStep& polygon) const {
        return CornersOf(polygon).boundingRect();
    }
    QRectF operator()(const TextStep& text) const { return {PointOf(text.at), QSizeF()}; }
    QRectF operator()(const TextRowStep& row) const {
        QPolygonF corners;
        for (const TextRowStep::Entry& entry : row.entries) {
            corners << PointOf(entry.at);
        }
        return corners.boundingRect();
    }
    QRectF operator()(const PictureStep& picture) const {
        return {picture.at.x, picture.at.y, picture.width, picture.height};
    }
};

/// By their edges: a line across or down has no area of its own.
QRectF BoundsOf(const Drawing& drawing) {
    QPolygonF corners;
    for (const DrawingStep& step : drawing) {
        const QRectF bounds = std::visit(StepBounds(), step);
        corners << bounds.topLeft() << bounds.bottomRight();
    }
    return corners.boundingRect();
}

}  // namespace

QColor OnPaper(const Colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

void DrawSteps(QPainter& painter, const QRectF& target, const QSizeF& twips, const Drawing& drawing,
               const Inks& inks) {
    if (twips.isEmpty() || drawing.empty()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / twips.width(), target.height() / twips.height());
    for (const DrawingStep& step : drawing) {
        std::visit(StepPainter(painter, inks), step);
    }
    painter.restore();
}

void DrawWhole(QPainter& painter, const QRectF& target, const Drawing& drawing, const Inks& inks) {
    const QRectF bounds = BoundsOf(drawing);
    if (bounds.isEmpty()) {
        return;
    }
    const double scale =
        std::min(target.width() / bounds.width(), target.height() / bounds.height());
    const QPointF corner = target.center() - bounds.center() * scale;
    DrawSteps(painter, {corner, bounds.size() * scale}, bounds.size(), drawing, inks);
}

}  // namespace horavex
