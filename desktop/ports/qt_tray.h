#pragma once

#include <QSystemTrayIcon>
#include <functional>

#include "platform/tray.h"

namespace horavex {

/// The icon in the notification area of the desktop.
class QtTray : public Tray {
public:
    QtTray();

    void Add(const std::string& tip) override;
    void Remove() override;
    void SetTip(const std::string& tip) override;

    /// The user chose the icon, by a click or two as the desktop has it.
    std::function<void()> onChosen;

    /// The user asked for its menu.
    std::function<void()> onMenu;

private:
    QSystemTrayIcon icon_;
};

}  // namespace horavex
