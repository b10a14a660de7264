#include "desktop/form_window/usable_window.h"

#include <QDialog>
#include <QGuiApplication>
#include <QWindow>

namespace horavex {

namespace {

/// A window of the program's that fills the screen; nullptr for none but that one.
QWindow* FillsScreenBeside(const QWindow* one) {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window != one && window->isVisible() &&
            window->windowStates().testFlag(Qt::WindowFullScreen)) {
            return window;
        }
    }
    return nullptr;
}

}  // namespace

void UsableWindow::Belong() {
    disconnect(owner_);
    QWindow* const own = window_.windowHandle();
    QWindow* const modal = QGuiApplication::modalWindow();
    QWindow* const owner = modal != nullptr ? modal : FillsScreenBeside(own);
    if (owner != nullptr && owner->transientParent() == own) {
        owner->setTransientParent(nullptr);  // two windows never belong to each other
    }
    own->setTransientParent(owner);
    if (owner != nullptr) {
        owner_ = connect(owner, &QWindow::visibleChanged, this, &UsableWindow::Belong,
                         Qt::QueuedConnection);
    }
}

void DeleteBehindDialogs(QWidget& window) {
    const auto open = window.findChildren<QDialog*>(Qt::FindDirectChildrenOnly);
    if (open.isEmpty()) {
        window.deleteLater();
    } else {
        QObject::connect(open.front(), &QObject::destroyed, &window, &QObject::deleteLater);
    }
}

}  // namespace horavex
