#pragma once

#include <QFont>
#include <QString>

namespace horavex::look {

/// A text from the right as it breaks in a width of pixels, with no blank at the ends of its lines.
QString InLines(QString text, const QFont& font, int width);

/// How much lower, in pixels, a line of text must be drawn in the middle of an area to stand on one
/// baseline with a line of Latin letters in the middle of another one as high. Letters that come
/// from a family behind the font's own make a line of another height.
int BaselineShift(const QString& text, const QFont& font);

}  // namespace horavex::look
