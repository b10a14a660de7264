#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <functional>

#include "forms/drawing.h"

namespace horavex {

/// What a colour of a drawing is drawn in: itself, or what a window has in its place.
using Inks = std::function<QColor(const Colour& colour)>;

QColor OnPaper(const Colour& colour);

/// Draws the steps, stretched so that an area of the given size in twips fills the target, given
/// in pixels. A picture is looked for in the program folder; a missing one draws nothing.
void DrawSteps(QPainter& painter, const QRectF& target, const QSizeF& twips, const Drawing& drawing,
               const Inks& inks = OnPaper);

/// Draws the steps as large as fits into the target and in its middle, in their own shape and
/// wherever they lie.
void DrawWhole(QPainter& painter, const QRectF& target, const Drawing& drawing, const Inks& inks);

}  // namespace horavex
