#pragma once

#include <chrono>
#include <optional>

#include "linux/bus/bus_notices.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// The notifications of a desktop in whose session the program runs, heard by its event loop. A bus
/// that is not there, or has ended, is looked for anew once a minute.
class TerminalNotices : public BusNotices {
public:
    /// betweenLooks: for a bus.
    explicit TerminalNotices(PollEventLoop& loop,
                             std::chrono::milliseconds betweenLooks = std::chrono::minutes(1));

    /// The process is about to end: none of them stays on view.
    void Leave();

private:
    void Follow();
    void Hear();

    PollEventLoop& loop_;
    const std::chrono::milliseconds betweenLooks_;
    std::optional<PollEventLoop::Reader> reader_;  // none without a bus
    PollEventLoop::Alarm search_;                  // for one, while there is none
};

}  // namespace horavex
