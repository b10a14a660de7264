#include "desktop/form_window/usable_window.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#include "desktop/ports/display.h"

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

/// The toolkit tells the display of owners when it shows a window, of its dialogues alone.
void Tell(const QWindow& window, const QWindow* owner) {
    xcb_connection_t* const display = Display();
    if (display == nullptr || window.handle() == nullptr) {
        return;
    }
    const auto own = static_cast<xcb_window_t>(window.winId());
    if (owner == nullptr || owner->handle() == nullptr) {
        xcb_delete_property(display, own, XCB_ATOM_WM_TRANSIENT_FOR);
    } else {
        const auto other = static_cast<std::uint32_t>(owner->winId());
        xcb_change_property(display, XCB_PROP_MODE_REPLACE, own, XCB_ATOM_WM_TRANSIENT_FOR,
                            XCB_ATOM_WINDOW, 32, 1, &other);
    }
    xcb_flush(display);
}

void SetOwner(QWindow& window, QWindow* owner) {
    window.setTransientParent(owner);
    if (window.isVisible()) {
        Tell(window, owner);
    }
}

/// What a window is to belong to, whose owner is usually another; nullptr for nothing. What fills
/// the screen may stand over the modal window itself, which then shuts off neither.
QWindow* OwnerOf(const QWindow* window, QWindow* usual) {
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal == window) {
        modal = nullptr;
    }
    QWindow* const filling = FillsScreenBeside(window);
    if (filling != nullptr && (modal == nullptr || modal->isAncestorOf(filling))) {
        return filling;
    }
    return usual != nullptr ? usual : modal;
}

}  // namespace

void UsableWindow::Belong(QWindow* usual) {
    usual_ = usual;
    BelongAnew();
}

void UsableWindow::BelongAnew() {
    disconnect(owner_);
    QWindow* const own = window_.windowHandle();
    QWindow* const owner = OwnerOf(own, usual_);
    if (owner != nullptr && owner->transientParent() == own) {
        SetOwner(*owner, nullptr);  // two windows never belong to each other
    }
    SetOwner(*own, owner);
    if (owner != nullptr) {
        owner_ = connect(owner, &QWindow::visibleChanged, this, &UsableWindow::BelongAnew,
                         Qt::QueuedConnection);
    }
}

void UsableWindow::TellOwner() const {
    const QWindow& own = *window_.windowHandle();
    Tell(own, own.transientParent());
}

QEvent::Type ScreenFilled() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

void TellScreenFilled() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QEvent event(ScreenFilled());
        QApplication::sendEvent(window, &event);
    }
}

QWidget* WindowInFront() {
    QWidget* const active = QApplication::activeWindow();
    const QWindow* const filling = FillsScreenBeside(nullptr);
    return active == nullptr && filling != nullptr ? QWidget::find(filling->winId()) : active;
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
