#pragma once

#include <QDBusServiceWatcher>
#include <memory>

#include "desktop/ports/bus_object.h"
#include "linux/notice_desk.h"

namespace horavex {

/// The notification service over the toolkit's connection to the bus. Windows that a press of a
/// button opens may come to the front.
class QtNotices : public NoticeDesk {
public:
    /// bus: where the service is.
    explicit QtNotices(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                       std::function<Time()> now = std::chrono::steady_clock::now);

private:
    void Look(const QDBusConnection& bus);
    void AskAbilities(std::function<void(const std::optional<Words>&)> take) override;
    void Notify(const NoticeCall& call, std::function<void(std::optional<Number>)> take) override;
    void CloseNotice(Number number) override;
    void Press(const QDBusMessage& signal);

    QObject context_;  // of all that comes later
    BusObject service_;
    QDBusServiceWatcher owner_;
    QString token_;  // of the activation that comes next
    std::unique_ptr<BusSignal> acted_;
    std::unique_ptr<BusSignal> closed_;
    std::unique_ptr<BusSignal> activated_;
};

}  // namespace horavex
