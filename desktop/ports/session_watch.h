#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <memory>

#include "desktop/ports/bus_object.h"
#include "desktop/ports/gnome_banners.h"
#include "platform/desktop_session.h"

namespace horavex {

/// The session as far as it can be known.
///
/// A sleep: from the login manager, org.freedesktop.login1, where there is one.
/// Full screen: on X11, of the window that the user works in; a Wayland desktop tells nobody.
/// Do not disturb: from a notification service with the property "Inhibited", such as Plasma's, and
/// on GNOME. Other desktops keep it to themselves.
///
/// All of it but the display's is followed as it changes, so that IsBusy() asks nobody on a bus.
class SessionWatch : public DesktopSession {
public:
    explicit SessionWatch(const QDBusConnection& session = QDBusConnection::sessionBus(),
                          const QDBusConnection& system = QDBusConnection::systemBus());

    bool IsBusy() override;

private:
    void WatchSleep(const QDBusConnection& system);
    void WatchService();
    void AskInhibited();
    void FollowInhibited(const QDBusMessage& change);

    QObject context_;  // of all that comes later
    BusObject service_;
    QDBusServiceWatcher owner_;
    bool isInhibited_ = false;
    GnomeBanners banners_;
    std::unique_ptr<BusSignal> slept_;
    std::unique_ptr<BusSignal> changed_;
};

}  // namespace horavex
