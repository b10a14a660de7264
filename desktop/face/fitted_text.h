#pragma once

#include <QPainter>

namespace horavex {

/// The direction of a text's first strong letter.
Qt::LayoutDirection DirectionOf(const QString& text);

/// The user's font in a size of the face, in pixels.
QFont FaceFont(int pixels, bool bold = false);

/// Draws one line of text in its own direction, so that "leading" is the right side for Arabic.
/// A text that is too wide is set in smaller type, down to seven tenths, and then cut with an
/// ellipsis.
void DrawFitted(QPainter& painter, const QRectF& area, Qt::Alignment alignment, QFont font,
                const QString& text);

}  // namespace horavex
