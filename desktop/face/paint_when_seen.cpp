#include "desktop/face/paint_when_seen.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>

#include "desktop/ports/display.h"

namespace horavex {

namespace {

constexpr std::uint8_t kKindOfEvent = 0x7f;  // without the mark of one that a program has sent

}  // namespace

PaintWhenSeen::PaintWhenSeen(QWidget& window) : QObject(&window), window_(window) {
    window_.installEventFilter(this);
    qApp->installNativeEventFilter(this);
}

void PaintWhenSeen::LieBeneath(QWidget& cover) {
    cover_ = &cover;
    cover.installEventFilter(this);
}

bool PaintWhenSeen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched == &window_) {
        HearOfCovers();
    }
    Follow();
    return false;
}

// The toolkit asks for other events of its windows, which go on.
void PaintWhenSeen::HearOfCovers() const {
    xcb_connection_t* const display = Display();
    if (display == nullptr) {
        return;
    }
    const auto window = static_cast<xcb_window_t>(window_.winId());
    const auto attributes = Owned(xcb_get_window_attributes_reply(
        display, xcb_get_window_attributes(display, window), nullptr));
    if (attributes) {
        const std::uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
        xcb_change_window_attributes(display, window, XCB_CW_EVENT_MASK, &events);
    }
}

bool PaintWhenSeen::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if (type != "xcb_generic_event_t" ||
        (event->response_type & kKindOfEvent) != XCB_VISIBILITY_NOTIFY) {
        return false;
    }
    const auto* told = static_cast<const xcb_visibility_notify_event_t*>(message);
    if (told->window == window_.internalWinId()) {
        isCovered_ = told->state == XCB_VISIBILITY_FULLY_OBSCURED;
        Follow();
    }
    return false;
}

// Window managers keep what fills the screen in front of all others while it has the keyboard.
bool PaintWhenSeen::IsBeneath() const {
    return cover_ != nullptr && cover_->isVisible() && !cover_->isMinimized() &&
           cover_->isActiveWindow() && PlacesAreKnown() &&
           cover_->geometry().contains(window_.frameGeometry());
}

void PaintWhenSeen::Follow() {
    const bool isSeen = !window_.isMinimized() && !isCovered_ && !IsBeneath();
    if (isSeen != window_.updatesEnabled()) {
        window_.setUpdatesEnabled(isSeen);
    }
}

}  // namespace horavex
