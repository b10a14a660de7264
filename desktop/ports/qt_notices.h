#pragma once

#include <QDBusServiceWatcher>
#include <QStringList>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "desktop/ports/bus_object.h"
#include "platform/notices.h"

namespace horavex {

/// The notification service of the desktop, org.freedesktop.Notifications. A service that can be
/// started counts as there, until its start fails; one that refuses a notice, or says nothing to it
/// for seconds, counts as none until another takes its name. One that starts anew has forgotten
/// what it showed, and gets again what is to stand. A notice that is stopped goes, one whose other
/// button is pressed stays.
class QtNotices : public Notices {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// bus: where the service is.
    explicit QtNotices(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                       std::function<Time()> now = std::chrono::steady_clock::now);

    bool HasService() override;
    void Show(NoticeKind kind, const Notice& notice) override;
    void Withdraw(NoticeKind kind) override;

private:
    /// What is wanted of a kind, and what the service has.
    struct Place {
        std::optional<Notice> wanted;
        bool isSent = false;             // what is wanted
        bool isAwaited = false;          // the service has not yet told the number
        uint number = 0;                 // of the one on view
        std::optional<Time> waitsSince;  // for the service to take what is wanted
        std::optional<Time> pressedAt;   // a button of the one on view
    };

    void Look(const QDBusConnection& bus);
    void Forget(const QString& owner);
    void Renew(Place& place) const;
    bool IsLate() const;
    void Settle(NoticeKind kind);
    void SettleAll();
    void Send(NoticeKind kind);
    void Take(NoticeKind kind, const QDBusMessage& answer, int owners);
    void AskAbilities();
    void TakeAbilities(const QDBusMessage& answer, int owners);
    void Act(const QDBusMessage& signal);
    void Open(NoticeKind kind, const QString& token) const;
    void Close(const QDBusMessage& signal);
    bool IsBehindPress(Place& place) const;
    void ShowAgain(NoticeKind kind);

    /// The kind of the notice that a signal is about; none for those of others.
    std::optional<NoticeKind> KindOf(const QDBusMessage& signal) const;

    QObject context_;  // of all that comes later
    std::function<Time()> now_;
    BusObject service_;
    QDBusServiceWatcher owner_;
    bool isRunning_ = false;
    bool isStartable_ = false;
    bool hasFailed_ = false;  // to show a notice
    int owners_ = 0;          // changes of the name's owner so far
    bool areAbilitiesAsked_ = false;
    std::optional<QStringList> abilities_;  // of the service that runs
    std::map<NoticeKind, Place> places_;
    QString token_;  // of the activation that comes next
    std::unique_ptr<BusSignal> acted_;
    std::unique_ptr<BusSignal> closed_;
    std::unique_ptr<BusSignal> activated_;
};

}  // namespace horavex
