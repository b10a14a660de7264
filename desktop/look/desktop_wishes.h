#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariant>
#include <memory>

#include "desktop/ports/bus_object.h"

namespace horavex::look {

/// Dresses the windows as the desktop wishes, now and whenever it changes its mind: dark or light,
/// with more contrast, without motion. The desktop's portal tells it,
/// org.freedesktop.portal.Settings, and is waited for by nobody; without one the windows are light.
///
/// A desktop whose colours the toolkit takes over by itself is left alone: they are the user's own,
/// and follow its changes without us.
class DesktopWishes {
public:
    /// Before anything else gives the application a palette.
    explicit DesktopWishes(const QDBusConnection& session = QDBusConnection::sessionBus());

private:
    void TakeAll(const QDBusMessage& answer);
    void Follow(const QDBusMessage& signal);
    void Take(const QString& space, const QString& key, const QVariant& value);
    void Apply() const;

    QObject context_;  // of all that comes later
    bool desktopHasColours_;
    bool wantsDark_ = false;
    bool wantsContrast_ = false;
    bool allowsEffects_ = true;
    bool wantsStillness_ = false;
    BusObject settings_;
    std::unique_ptr<BusSignal> changed_;
};

}  // namespace horavex::look
