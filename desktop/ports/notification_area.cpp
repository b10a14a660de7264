#include "desktop/ports/notification_area.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDateTime>
#include <utility>

#include "desktop/ports/display.h"
#include "forms/timer_delay.h"

namespace horavex {

namespace {

constexpr int kLookEverySeconds = 2;  // a panel starts anew within one look

bool HasStatusNotifier() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() &&
           bus.interface()->isServiceRegistered(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

// The host of icons owns this selection of the display.
bool HasXEmbedHost() {
    xcb_connection_t* display = Display();
    if (display == nullptr) {
        return false;
    }
    const auto owner = Owned(xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, AtomOf(display, "_NET_SYSTEM_TRAY_S0")),
        nullptr));
    return owner && owner->owner != XCB_NONE;
}

}  // namespace

NotificationArea::NotificationArea() {
    looking_.setSingleShot(true);
    looking_.setTimerType(Qt::PreciseTimer);
    looking_.callOnTimeout([this] { Look(); });
}

AreaKind NotificationArea::Present() const {
    if (HasStatusNotifier()) {
        return AreaKind::kStatusNotifier;
    }
    return HasXEmbedHost() ? AreaKind::kXEmbed : AreaKind::kNone;
}

void NotificationArea::Watch(std::function<void(AreaKind)> onChange) {
    onChange_ = std::move(onChange);
    Look();
}

void NotificationArea::Look() {
    looking_.start(DelayToTurn(kLookEverySeconds, QDateTime::currentMSecsSinceEpoch()));
    const AreaKind kind = Present();
    looksWithout_ = kind == AreaKind::kNone ? looksWithout_ + 1 : 0;
    if (kind != told_ && looksWithout_ != 1) {
        told_ = kind;
        onChange_(kind);
    }
}

}  // namespace horavex
