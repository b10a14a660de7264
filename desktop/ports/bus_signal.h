#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>

namespace horavex {

/// What comes over a bus: an answer or a signal.
using TakeMessage = std::function<void(const QDBusMessage& message)>;

/// Hears a signal of a bus as long as it lives; the end of the object is the end of hearing.
class BusSignal : public QObject {
    Q_OBJECT

public:
    explicit BusSignal(TakeMessage take) : take_(std::move(take)) {}

public Q_SLOTS:
    void Arrive(const QDBusMessage& message);

private:
    TakeMessage take_;
};

}  // namespace horavex
