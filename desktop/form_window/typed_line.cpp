#include "desktop/form_window/typed_line.h"

#include <QFocusEvent>
#include <utility>

#include "desktop/user_text.h"

namespace horavex {

void TypedLine::Show(QLineEdit& line, const std::string& text) const {
    const bool isTyped = line.text() == typed_ && TypedText(typed_) == text;
    if (const QString shown = isTyped ? typed_ : UserText(text); line.text() != shown) {
        line.setText(shown);
    }
}

bool TypedLine::IsLeftBy(const QEvent& event) {
    const bool isLeft = event.type() == QEvent::FocusOut &&
                        static_cast<const QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
    return isLeft && !std::exchange(typed_, {}).isNull();
}

}  // namespace horavex
