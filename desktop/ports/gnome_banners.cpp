#include "desktop/ports/gnome_banners.h"

#include <utility>

namespace horavex {

namespace {

constexpr const char* kKey = "/org/gnome/desktop/notifications/show-banners";

bool IsGnome() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains("GNOME");
}

}  // namespace

GnomeBanners::GnomeBanners(const QDBusConnection& bus) {
    if (!IsGnome()) {
        return;
    }
    const BusObject store(bus, QStringLiteral("ca.desrt.dconf"),
                          QStringLiteral("/ca/desrt/dconf/Writer/user"),
                          QStringLiteral("ca.desrt.dconf.Writer"));
    changed_ = store.Hear("Notify", [this](const QDBusMessage& signal) { Follow(signal); });
    QObject::connect(&tool_, &QProcess::finished, &tool_, [this] { Take(); });
    Look();
}

// One change is told with its key, several with the folder that they lie in.
void GnomeBanners::Follow(const QDBusMessage& signal) {
    const QString changed = signal.arguments().value(0).toString();
    if (QString(QLatin1String(kKey)).startsWith(changed)) {
        Look();
    }
}

void GnomeBanners::Look() {
    isOutdated_ = tool_.state() != QProcess::NotRunning;
    if (!isOutdated_) {
        tool_.start("gsettings", {"get", "org.gnome.desktop.notifications", "show-banners"});
    }
}

void GnomeBanners::Take() {
    areHidden_ = tool_.readAllStandardOutput().trimmed() == "false";
    if (std::exchange(isOutdated_, false)) {
        Look();
    }
}

}  // namespace horavex
