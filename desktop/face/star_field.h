#pragma once

#include <QPainter>

namespace horavex {

/// The same stars at each call. strength: 0 shows none, 1 all of them fully.
void PaintStars(QPainter& painter, const QRectF& area, double strength);

}  // namespace horavex
