#pragma once

#include <QTimer>

#include "forms/timer.h"

namespace horavex {

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
