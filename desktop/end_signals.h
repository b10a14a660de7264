#pragma once

#include <QSocketNotifier>
#include <memory>

namespace horavex {

/// Turns SIGTERM, SIGINT and SIGHUP into an event that asks the application to quit, which ends the
/// program between two events and never in the middle of a write. A signal that is ignored stays
/// ignored. One at a time.
class EndSignals {
public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace horavex
