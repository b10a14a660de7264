#include "desktop/ports/session_watch.h"

#include <QDBusArgument>
#include <QGuiApplication>
#include <QVariantMap>
#include <QWindow>
#include <algorithm>

#include "desktop/ports/display.h"
#include "desktop/ports/full_screen.h"

namespace horavex {

namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kProperty = "Inhibited";

bool IsOurs(xcb_window_t window) {
    const auto windows = QGuiApplication::allWindows();
    return std::any_of(windows.begin(), windows.end(), [window](QWindow* ours) {
        return ours->handle() != nullptr && ours->winId() == window;
    });
}

bool OthersFillScreen() {
    xcb_connection_t* display = Display();
    const auto window = display == nullptr ? std::nullopt : FullScreenWindow(display);
    return window && !IsOurs(*window);
}

}  // namespace

SessionWatch::SessionWatch(const QDBusConnection& session, const QDBusConnection& system)
    : service_(session, QLatin1String(kService), QStringLiteral("/org/freedesktop/Notifications"),
               QLatin1String(kService)),
      owner_(QLatin1String(kService), session),
      banners_(session) {
    WatchSleep(system);
    WatchService();
}

bool SessionWatch::IsBusy() {
    return isInhibited_ || banners_.AreHidden() || OthersFillScreen();
}

// The signal comes before a sleep with true, and behind it with false.
void SessionWatch::WatchSleep(const QDBusConnection& system) {
    const BusObject manager(system, QStringLiteral("org.freedesktop.login1"),
                            QStringLiteral("/org/freedesktop/login1"),
                            QStringLiteral("org.freedesktop.login1.Manager"));
    slept_ = manager.Hear("PrepareForSleep", [this](const QDBusMessage& signal) {
        const bool isAwake = signal.arguments().value(0) == QVariant(false);
        if (isAwake && onResume) {
            onResume();
        }
    });
}

void SessionWatch::WatchService() {
    changed_ = service_.HearProperties([this](const auto& change) { FollowInhibited(change); });
    owner_.connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, &context_,
                   [this] { AskInhibited(); });
    AskInhibited();
}

void SessionWatch::AskInhibited() {
    service_.AskProperty(context_, kProperty, [this](const QDBusMessage& answer) {
        isInhibited_ = ValueOf(answer).toBool();
    });
}

void SessionWatch::FollowInhibited(const QDBusMessage& change) {
    const auto values = qdbus_cast<QVariantMap>(change.arguments().value(1));
    if (values.contains(QLatin1String(kProperty))) {
        isInhibited_ = values[QLatin1String(kProperty)].toBool();
    } else {
        AskInhibited();
    }
}

}  // namespace horavex
