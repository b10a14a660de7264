#pragma once

#include <functional>

#include "base/prayers.h"

namespace horavex {

/// What a tick sets in motion. The real routines unless a test watches them.
struct TickActions {
    std::function<void()> refreshAll;
    std::function<void()> showDay;
    std::function<void(Alert alert)> alert;
};

TickActions DefaultTickActions();

/// One tick of tmrUpdate: the turn of the year or of the day, the prayers and the alarm that
/// have arrived in the last ten seconds, and the day shown anew. Each arrival is found by
/// comparison; a clock that jumps over its ten seconds misses it, and one that is set back meets
/// it again.
void RunTick(const TickActions& actions);

/// The timer's handler. Ticks come inside every wait, those of another tick's own alert included,
/// and under every modal window, menu and dialogue; athanActive and alarmActive keep an alert from
/// nesting in itself.
void tmrUpdate_Timer();

}  // namespace horavex
