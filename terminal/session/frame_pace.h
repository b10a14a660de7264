#pragma once

#include <chrono>

#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// The pace at which the screen is drawn: at once after a rest, else a while after the drawing
/// before. A list that fills reports each of its rows, and a terminal far away would be kept busy.
class FramePace {
public:
    /// Short enough to look like at once.
    static constexpr std::chrono::milliseconds kUsual{30};

    /// The loop lives longer. least: between two drawings.
    explicit FramePace(PollEventLoop& loop, std::chrono::nanoseconds least = kUsual);

    /// Draws in a later turn, in place of what was to be drawn and has not been.
    void Later(PollEventLoop::Action draw);

private:
    void Draw();

    const std::chrono::nanoseconds least_;
    PollEventLoop::Time drawn_;  // the last time
    PollEventLoop::Action draw_;
    PollEventLoop::Alarm alarm_;
};

}  // namespace horavex
