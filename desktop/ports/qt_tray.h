#pragma once

#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>

#include "desktop/ports/notification_area.h"
#include "forms/menu_item.h"
#include "platform/tray.h"

namespace horavex {

/// The icon in the notification area of the desktop. Where icons are spoken of over the bus, the
/// area draws the menu itself and knows no double click: two activations in quick succession are
/// one.
class QtTray : public QObject, public Tray {
public:
    /// The menu that an area draws itself; its entries are clicked there. onAreaGone comes when the
    /// last area is gone.
    QtTray(const MenuItem& menu, std::function<void()> onAreaGone);

    void Add(const std::string& tip) override;
    void Remove() override;
    void SetTip(const std::string& tip) override;
    void SetQuiet(bool quiet) override;
    bool HasHost() override { return area_.Present() != AreaKind::kNone; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow(AreaKind kind);
    void Appear(AreaKind kind);
    void OfferMenu();
    void FillOfferedMenu();
    void Activated(QSystemTrayIcon::ActivationReason reason);
    void Clicked();
    void Tell(TrayMessage message);

    const MenuItem& source_;
    const std::function<void()> onAreaGone_;
    NotificationArea area_;
    AreaKind kind_ = AreaKind::kNone;
    QString tip_;
    QElapsedTimer sinceClick_;
    bool awaitsRightUp_ = false;
    bool isQuiet_ = false;
    QMenu menu_;
    // Made when there is an area to show it: the toolkit settles on a kind of area for good.
    std::unique_ptr<QSystemTrayIcon> icon_;
};

}  // namespace horavex
