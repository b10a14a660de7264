#include "desktop/ports/qt_tray.h"

#include "desktop/ports/emblem.h"

namespace horavex {

QtTray::QtTray() {
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Context) {
                             onMenu();
                         } else if (reason == QSystemTrayIcon::Trigger ||
                                    reason == QSystemTrayIcon::DoubleClick) {
                             onChosen();
                         }
                     });
}

void QtTray::Add(const std::string& tip) {
    icon_.setIcon(Emblem());
    SetTip(tip);
    icon_.show();
}

void QtTray::Remove() {
    icon_.hide();
}

void QtTray::SetTip(const std::string& tip) {
    icon_.setToolTip(QString::fromStdString(tip));
}

}  // namespace horavex
