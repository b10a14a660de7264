#pragma once

#include <QTimer>
#include <cstdint>

#include "forms/timer.h"

namespace horavex {

/// Milliseconds from a moment of the wall clock, in milliseconds, to a timer's next tick. A timer
/// of one second ticks when the second turns, so that what it shows is fresh; every other one
/// when its interval is over.
int DelayToTick(int intervalMs, std::int64_t nowMs);

/// Measures the time of a timer control.
class TimerDrive {
public:
    explicit TimerDrive(Timer& timer);

    /// The control has changed. A timer that goes on with the same interval is not disturbed.
    void Update();

private:
    void Arm();
    void Fire();

    Timer& timer_;
    QTimer clockwork_;
    int armedIntervalMs_ = 0;  // 0 while it stands still
};

}  // namespace horavex
