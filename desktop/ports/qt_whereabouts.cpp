#include "desktop/ports/qt_whereabouts.h"

#include <QDBusConnectionInterface>
#include <utility>

#include "linux/zone_name.h"

namespace horavex {

QtWhereabouts::QtWhereabouts(QDBusConnection bus, int patience, QLocale locale)
    : bus_(std::move(bus)), patience_(patience), locale_(std::move(locale)) {}

std::vector<std::string> QtWhereabouts::ZoneNames() const {
    return ZoneNamesIn(ThisComputersSources());
}

std::string QtWhereabouts::Country() const {
    return locale_.language() == QLocale::C
               ? std::string()
               : QLocale::territoryToString(locale_.territory()).toStdString();
}

bool QtWhereabouts::CanLocate() const {
    if (!bus_.isConnected()) {
        return false;
    }
    const QString service = QLatin1String(kLocationService);
    const QStringList startable = bus_.interface()->activatableServiceNames();
    return startable.contains(service) || bus_.interface()->isServiceRegistered(service);
}

void QtWhereabouts::Locate(Answer answer) {
    question_.reset();  // its client goes back before the next one is taken
    question_ = std::make_unique<LocationQuestion>(bus_, patience_, std::move(answer));
}

void QtWhereabouts::StopLocating() {
    question_.reset();
}

}  // namespace horavex
