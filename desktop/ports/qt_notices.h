#pragma once

#include <QDBusServiceWatcher>
#include <QStringList>
#include <map>
#include <memory>
#include <optional>

#include "desktop/ports/bus_object.h"
#include "platform/notices.h"

namespace horavex {

/// The notification service of the desktop, org.freedesktop.Notifications. A service that can be
/// started counts as there, until its start fails; one that starts anew has forgotten what it
/// showed. A notice that is stopped goes, one whose other button is pressed stays.
class QtNotices : public Notices {
public:
    /// bus: where the service is.
    explicit QtNotices(const QDBusConnection& bus = QDBusConnection::sessionBus());

    bool HasService() override { return isRunning_ || isStartable_; }
    void Show(NoticeKind kind, const Notice& notice) override;
    void Withdraw(NoticeKind kind) override;

private:
    /// What is wanted of a kind, and what the service has.
    struct Place {
        std::optional<Notice> wanted;
        bool isSent = false;     // what is wanted
        bool isAwaited = false;  // the service has not yet told the number
        uint number = 0;         // of the one on view
        bool isPressed = false;  // the user has pressed a button of it
    };

    void Look(const QDBusConnection& bus);
    void Forget(const QString& owner);
    void Settle(NoticeKind kind);
    void Send(NoticeKind kind);
    void AskAbilities();
    void Act(const QDBusMessage& signal);
    void Open(NoticeKind kind, const QString& token) const;
    void Close(const QDBusMessage& signal);

    /// The kind of the notice that a signal is about; none for those of others.
    std::optional<NoticeKind> KindOf(const QDBusMessage& signal) const;

    QObject context_;  // of all that comes later
    BusObject service_;
    QDBusServiceWatcher owner_;
    bool isRunning_ = false;
    bool isStartable_ = false;
    bool areAbilitiesAsked_ = false;
    std::optional<QStringList> abilities_;  // of the service that runs
    std::map<NoticeKind, Place> places_;
    QString token_;  // of the activation that comes next
    std::unique_ptr<BusSignal> acted_;
    std::unique_ptr<BusSignal> closed_;
    std::unique_ptr<BusSignal> activated_;
};

}  // namespace horavex
