#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>

#include "forms/drawing.h"

namespace horavex {

/// What black and white are drawn in: as they are on paper, or the colours of a window's texts.
struct Inks {
    QColor black = Qt::black;
    QColor white = Qt::white;
};

/// Draws the steps, stretched so that an area of the given size in twips fills the target, given
/// in pixels. A picture is looked for in the program folder; a missing one draws nothing.
void DrawSteps(QPainter& painter, const QRectF& target, const QSizeF& twips, const Drawing& drawing,
               const Inks& inks = {});

/// Draws the steps as large as fits into the target and in its middle, in their own shape and
/// wherever they lie.
void DrawWhole(QPainter& painter, const QRectF& target, const Drawing& drawing, const Inks& inks);

}  // namespace horavex
