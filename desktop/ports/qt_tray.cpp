#include "desktop/ports/qt_tray.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <utility>

#include "desktop/form_window/menu.h"
#include "desktop/ports/emblem.h"
#include "desktop/user_text.h"
#include "platform/fault_box.h"

namespace horavex {

namespace {

/// The toolkit's own window of the icon, in an area on the display.
bool IsIconWindow(const QObject& object) {
    return object.isWindowType() &&
           object.objectName() == QLatin1String("QSystemTrayIconSysWindow");
}

}  // namespace

QtTray::QtTray(const MenuItem& menu, std::function<void()> onAreaGone)
    : source_(menu), onAreaGone_(std::move(onAreaGone)) {
    connect(&menu_, &QMenu::aboutToShow, this, &QtTray::FillOfferedMenu);
    connect(&menu_, &QMenu::triggered, this,
            [](const QAction* entry) { RunGuarded([entry] { ItemOf(entry)->UserClick(); }); });
    qApp->installEventFilter(this);
}

void QtTray::Add(const std::string& tip) {
    SetTip(tip);
    area_.Watch([this](AreaKind kind) { Follow(kind); });
}

void QtTray::Remove() {
    icon_.reset();
}

// An area that starts anew takes the icon back by itself.
void QtTray::Follow(AreaKind kind) {
    if (kind == AreaKind::kNone) {
        RunGuarded(onAreaGone_);
    } else if (kind != kind_) {
        Appear(kind);
    }
}

void QtTray::SetTip(const std::string& tip) {
    tip_ = UserText(tip);
    if (icon_) {
        icon_->setToolTip(tip_);
    }
}

void QtTray::SetQuiet(bool quiet) {
    if (std::exchange(isQuiet_, quiet) != quiet && icon_) {
        icon_->setIcon(quiet ? QuietEmblem() : Emblem());
    }
}

void QtTray::Appear(AreaKind kind) {
    kind_ = kind;
    icon_ = std::make_unique<QSystemTrayIcon>(isQuiet_ ? QuietEmblem() : Emblem());
    icon_->setToolTip(tip_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, &QtTray::Activated);
    if (kind == AreaKind::kStatusNotifier) {
        OfferMenu();
    }
    icon_->show();
}

void QtTray::OfferMenu() {
    FillOfferedMenu();
    icon_->setContextMenu(&menu_);
}

// An area asks for the menu before it draws it. Entries keep their numbers while nothing changed.
void QtTray::FillOfferedMenu() {
    if (!ShowsEntriesOf(menu_, source_)) {
        menu_.clear();
        FillMenu(menu_, source_);
    }
}

void QtTray::Activated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
        case QSystemTrayIcon::Trigger:
            Clicked();
            break;
        case QSystemTrayIcon::DoubleClick:
            sinceClick_.invalidate();
            Tell(TrayMessage::kLeftDoubleClick);
            break;
        case QSystemTrayIcon::Context:
            Tell(TrayMessage::kRightDown);
            if (kind_ == AreaKind::kXEmbed) {
                awaitsRightUp_ = true;  // the button comes up over the icon's own window
            } else {
                Tell(TrayMessage::kRightUp);
            }
            break;
        default:
            break;
    }
}

void QtTray::Tell(TrayMessage message) {
    RunGuarded([&] { onMessage(message); });
}

void QtTray::Clicked() {
    const bool isSecond =
        sinceClick_.isValid() && sinceClick_.elapsed() <= QApplication::doubleClickInterval();
    if (isSecond) {
        sinceClick_.invalidate();
        Tell(TrayMessage::kLeftDoubleClick);
    } else {
        sinceClick_.start();
        Tell(TrayMessage::kLeftDown);
    }
}

// The icon can be used whatever modal window is open: what belongs to one is not shut off.
bool QtTray::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowBlocked && IsIconWindow(*watched)) {
        auto* window = static_cast<QWindow*>(watched);
        window->setTransientParent(QGuiApplication::modalWindow());
    }
    if (awaitsRightUp_ && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        awaitsRightUp_ = false;
        Tell(TrayMessage::kRightUp);
    }
    return false;
}

}  // namespace horavex
