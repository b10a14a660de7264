#include "forms/timer_delay.h"

namespace horavex {

namespace {

constexpr int kOneSecondMs = 1000;

}  // namespace

int DelayToTick(int intervalMs, std::int64_t nowMs) {
    if (intervalMs != kOneSecondMs) {
        return intervalMs;
    }
    return kOneSecondMs - static_cast<int>(nowMs % kOneSecondMs);
}

// From the nearest turn: a timer that fires a little early does not fire again at once.
int DelayToTurn(int seconds, std::int64_t nowMs) {
    const auto sinceHalf = static_cast<int>((nowMs + kOneSecondMs / 2) % kOneSecondMs);
    return seconds * kOneSecondMs + kOneSecondMs / 2 - sinceHalf;
}

}  // namespace horavex
