#include "desktop/form_window/arrow_buttons.h"

#include <QPushButton>
#include <QShortcut>
#include <algorithm>

namespace horavex {

namespace {

void Press(const QWidget& window, bool left) {
    const bool back = left == (window.layoutDirection() == Qt::LeftToRight);
    const QString wanted = back ? QStringLiteral("back") : QStringLiteral("on");
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->property("pressedBy").toString() == wanted) {
            button->click();
            return;
        }
    }
}

bool HasArrowButtons(const QWidget& window) {
    const auto buttons = window.findChildren<QPushButton*>();
    return std::any_of(buttons.begin(), buttons.end(), [](const QPushButton* button) {
        return button->property("pressedBy").isValid();
    });
}

}  // namespace

void BindArrowButtons(QWidget& window) {
    if (!HasArrowButtons(window)) {
        return;
    }
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
        auto* shortcut = new QShortcut(QKeySequence(key), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window,
                         [&window, key] { Press(window, key == Qt::Key_Left); });
    }
}

}  // namespace horavex
