#include "desktop/ports/notification_area.h"

#include <xcb/xcb.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <utility>

namespace horavex {

namespace {

constexpr int kLookEveryMs = 2000;

bool HasStatusNotifier() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() &&
           bus.interface()->isServiceRegistered(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
    return {reply, &std::free};
}

// The host of icons owns this selection of the display.
bool HasXEmbedHost() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) {
        return false;
    }
    constexpr std::string_view kSelection = "_NET_SYSTEM_TRAY_S0";
    xcb_connection_t* display = x11->connection();
    const auto atom = Owned(xcb_intern_atom_reply(
        display, xcb_intern_atom(display, 0, kSelection.size(), kSelection.data()), nullptr));
    if (!atom) {
        return false;
    }
    const auto owner = Owned(xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

}  // namespace

NotificationArea::NotificationArea() {
    looking_.setInterval(kLookEveryMs);
    looking_.callOnTimeout([this] { Look(); });
}

AreaKind NotificationArea::Present() const {
    if (HasStatusNotifier()) {
        return AreaKind::kStatusNotifier;
    }
    return HasXEmbedHost() ? AreaKind::kXEmbed : AreaKind::kNone;
}

void NotificationArea::Await(std::function<void(AreaKind)> onAppear) {
    onAppear_ = std::move(onAppear);
    looking_.start();
    Look();
}

void NotificationArea::Look() {
    const AreaKind kind = Present();
    if (kind != AreaKind::kNone) {
        looking_.stop();
        std::exchange(onAppear_, {})(kind);
    }
}

}  // namespace horavex
