#pragma once

#include <QSocketNotifier>
#include <memory>

#include "linux/bus/session_broadcast.h"

namespace horavex {

/// Has the toolkit's event loop answer what others ask on the session bus.
class BusPump {
public:
    explicit BusPump(SessionBroadcast& broadcast);
    ~BusPump();
    BusPump(const BusPump&) = delete;
    BusPump& operator=(const BusPump&) = delete;

private:
    void Follow();

    SessionBroadcast& broadcast_;
    std::unique_ptr<QSocketNotifier> notifier_;  // nullptr without a bus
};

}  // namespace horavex
