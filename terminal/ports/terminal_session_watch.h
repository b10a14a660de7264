#pragma once

#include <optional>

#include "linux/bus/sleep_watch.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// The session of a program without a desktop; its event loop hears of the computer's sleeps.
class TerminalSessionWatch : public SleepWatch {
public:
    explicit TerminalSessionWatch(PollEventLoop& loop);

private:
    std::optional<PollEventLoop::Reader> reader_;  // none without a bus
};

}  // namespace horavex
