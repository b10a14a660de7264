#pragma once

#include <optional>

#include "linux/bus/bus_notices.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// The notifications of a desktop in whose session the program runs, heard by its event loop.
class TerminalNotices : public BusNotices {
public:
    explicit TerminalNotices(PollEventLoop& loop);

    /// The process is about to end: none of them stays on view.
    void Leave();

private:
    void Hear();

    std::optional<PollEventLoop::Reader> reader_;  // none without a bus
};

}  // namespace horavex
