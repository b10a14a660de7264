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

constexpr int kLookEveryMs = 2000;  // a panel starts anew within one look

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
    xcb_connection_t* display = x11 == nullptr ? nullptr : x11->connection();
    if (display == nullptr) {  // the platform without a screen knows of displays and has none
        return false;
    }
    constexpr std::string_view kSelection = "_NET_SYSTEM_TRAY_S0";
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

void NotificationArea::Watch(std::function<void(AreaKind)> onChange) {
    onChange_ = std::move(onChange);
    looking_.start();
    Look();
}

void NotificationArea::Look() {
    const AreaKind kind = Present();
    looksWithout_ = kind == AreaKind::kNone ? looksWithout_ + 1 : 0;
    if (kind != told_ && looksWithout_ != 1) {
        told_ = kind;
        onChange_(kind);
    }
}

}  // namespace horavex
