#pragma once

#include <QPainter>

namespace horavex {

/// The direction of a text's first strong letter.
Qt::LayoutDirection DirectionOf(const QString& text);

/// The user's font in a size of the face, in pixels.
QFont FaceFont(int pixels, bool bold = false);

/// In a text that runs from right to left a time keeps its parts together in their own order, and
/// the Latin words before it: "Fajr at 5:18:12 AM" and not "AM 5:18:12 Fajr at".
QString WithTimesIsolated(QString text);

/// Draws one line of text in its own direction, so that "leading" is the right side for Arabic.
/// A text that is too wide is set in smaller type, down to seven tenths, and then cut with an
/// ellipsis. Letters that would hang out below the area raise their line.
void DrawFitted(QPainter& painter, const QRectF& area, Qt::Alignment alignment, QFont font,
                const QString& text);

}  // namespace horavex
