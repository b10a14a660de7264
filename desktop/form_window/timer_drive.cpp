#include "desktop/form_window/timer_drive.h"

#include <QDateTime>

#include "forms/timer_delay.h"
#include "platform/fault_box.h"

namespace horavex {

TimerDrive::TimerDrive(Timer& timer) : timer_(timer) {
    clockwork_.setSingleShot(true);
    clockwork_.setTimerType(Qt::PreciseTimer);
    clockwork_.callOnTimeout([this] { Fire(); });
    Update();
}

void TimerDrive::Update() {
    const int wantedMs = timer_.Running() ? timer_.Interval() : 0;
    if (wantedMs == armedIntervalMs_) {
        return;
    }
    armedIntervalMs_ = wantedMs;
    clockwork_.stop();
    if (wantedMs > 0) {
        Arm();
    }
}

void TimerDrive::Arm() {
    clockwork_.start(DelayToTick(armedIntervalMs_, QDateTime::currentMSecsSinceEpoch()));
}

// Armed again before the handler runs: it may open a window under which the timer goes on. The
// handler may also unload the form, so that nothing comes after it.
void TimerDrive::Fire() {
    Arm();
    RunGuarded([this] { timer_.Tick(); });
}

}  // namespace horavex
