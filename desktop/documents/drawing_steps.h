#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>

#include "forms/drawing.h"

namespace horavex {

/// Draws the steps, stretched so that an area of the given size in twips fills the target, given
/// in pixels. A picture is looked for in the program folder; a missing one draws nothing.
void DrawSteps(QPainter& painter, const QRectF& target, const QSizeF& twips,
               const Drawing& drawing);

}  // namespace horavex
