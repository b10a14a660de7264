#pragma once

#include <optional>

#include "linux/bus/session_broadcast.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// Has the event loop answer what others ask on the session bus.
class BusReader {
public:
    BusReader(PollEventLoop& loop, SessionBroadcast& broadcast);
    ~BusReader();
    BusReader(const BusReader&) = delete;
    BusReader& operator=(const BusReader&) = delete;

private:
    void Follow();

    PollEventLoop& loop_;
    SessionBroadcast& broadcast_;
    std::optional<PollEventLoop::Reader> reader_;  // none without a bus
};

}  // namespace horavex
