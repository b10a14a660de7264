#pragma once

#include <cstdint>

namespace horavex {

/// Milliseconds from a moment of the wall clock, in milliseconds, to a timer's next tick. A timer
/// of one second ticks when the second turns, so that what it shows is fresh; every other one
/// when its interval is over.
int DelayToTick(int intervalMs, std::int64_t nowMs);

/// Milliseconds from a moment of the wall clock to one that whole seconds turn at, about as many of
/// them away as wanted: what need not be prompt is done along with the tick, by one wake-up.
int DelayToTurn(int seconds, std::int64_t nowMs);

}  // namespace horavex
