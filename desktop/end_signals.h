#pragma once

#include <QSocketNotifier>

#include "linux/signal_pipe.h"

namespace horavex {

/// Turns SIGTERM, SIGINT and SIGHUP into an event that asks the application to quit, which ends the
/// program between two events. One at a time.
class EndSignals {
public:
    EndSignals();

private:
    SignalPipe signals_;
    QSocketNotifier notifier_{signals_.Number(), QSocketNotifier::Read};
};

}  // namespace horavex
