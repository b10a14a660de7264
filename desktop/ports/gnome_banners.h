#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <memory>

#include "desktop/ports/bus_object.h"

namespace horavex {

/// Whether a GNOME desktop shows notifications as they come, which is what "Do Not Disturb" turns
/// off there. The desktop's own tool tells it, at the start and whenever the store of settings says
/// that it has changed. On another desktop, or without the tool, they count as shown.
class GnomeBanners {
public:
    /// bus: of the session.
    explicit GnomeBanners(const QDBusConnection& bus);

    bool AreHidden() const { return areHidden_; }

private:
    void Look();
    void Follow(const QDBusMessage& signal);
    void Take();

    QProcess tool_;
    bool areHidden_ = false;
    bool isOutdated_ = false;  // what the tool is about to tell
    std::unique_ptr<BusSignal> changed_;
};

}  // namespace horavex
