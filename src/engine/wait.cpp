#include "engine/wait.h"

#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kRestMs = 10;

}  // namespace

void WaitSeconds(double span) {
    const double seconds = span * kSecondsPerDay;
    const double start = Ports().clock.SteadySeconds();
    while (Ports().clock.SteadySeconds() - start < seconds) {
        Ports().eventLoop.Rest(kRestMs);
    }
}

}  // namespace horavex
