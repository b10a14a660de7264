#pragma once

#include <cstdint>
#include <functional>

namespace horavex {

/// What a tick sets in motion. The real routines unless a test watches them.
struct TickActions {
    std::function<void()> refreshAll;
    std::function<void()> showDay;
    std::function<void(std::int16_t index)> alert;
};

TickActions DefaultTickActions();

/// One tick of tmrUpdate: the turn of the year or of the day, the prayers and the alarm that
/// have arrived in the last ten seconds, and the day shown anew. Each arrival is found by
/// comparison; a clock that jumps over its ten seconds misses it, and one that is set back meets
/// it again.
void RunTick(const TickActions& actions);

/// The timer's handler. A wait inside a tick's own call starts no other tick, so that an alarm
/// does not nest in itself; under a modal window or a menu that was opened meanwhile the ticks go
/// on.
void tmrUpdate_Timer();

}  // namespace horavex
