#include "desktop/face/text_line.h"

#include <QPainter>

#include "desktop/face/fitted_text.h"
#include "desktop/user_text.h"

namespace horavex {

TextLine::TextLine(QWidget* parent, Look look) : QLabel(parent), look_(look) {
    setTextFormat(Qt::PlainText);
}

void TextLine::ShowText(const QString& text) {
    if (const QString shown = UserText(text); shown != this->text()) {
        setText(shown);
    }
}

void TextLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(look_.colour);
    DrawFitted(painter, rect(), look_.alignment, FaceFont(look_.pixels), text());
}

}  // namespace horavex
