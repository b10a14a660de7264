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

}  // namespace horavex
