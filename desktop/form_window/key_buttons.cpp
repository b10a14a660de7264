#include "desktop/form_window/key_buttons.h"

#include <QVariant>

namespace horavex {

namespace {

constexpr const char* kCancels = "cancels";

}  // namespace

QPushButton* ButtonForEnter(const QWidget& window) {
    if (auto* focused = qobject_cast<QPushButton*>(window.focusWidget())) {
        return focused;
    }
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->isDefault()) {
            return button;
        }
    }
    return nullptr;
}

QPushButton* CancelButton(const QWidget& window) {
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->property(kCancels).toBool()) {
            return button;
        }
    }
    return nullptr;
}

}  // namespace horavex
