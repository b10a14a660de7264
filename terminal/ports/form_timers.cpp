#include "terminal/ports/form_timers.h"

#include <chrono>

#include "forms/timer_delay.h"

namespace horavex {

namespace {

std::int64_t WallMilliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace

/// The time of one control.
class FormTimers::Drive {
public:
    Drive(PollEventLoop& loop, Timer& timer) : timer_(timer), alarm_(loop, [this] { Fire(); }) {
        Update();
    }

    void Update() {
        const int wantedMs = timer_.Running() ? timer_.Interval() : 0;
        if (wantedMs == armedIntervalMs_) {
            return;
        }
        armedIntervalMs_ = wantedMs;
        alarm_.Stop();
        if (wantedMs > 0) {
            Arm();
        }
    }

private:
    void Arm() {
        alarm_.Set(std::chrono::milliseconds(DelayToTick(armedIntervalMs_, WallMilliseconds())));
    }

    // Armed again before the handler runs: it may open a window under which the timer goes on. The
    // handler may also unload the form, so that nothing comes after it.
    void Fire() {
        Arm();
        timer_.Tick();
    }

    Timer& timer_;
    PollEventLoop::Alarm alarm_;
    int armedIntervalMs_ = 0;  // 0 while it stands still
};

FormTimers::FormTimers(PollEventLoop& loop) : loop_(loop) {}

FormTimers::~FormTimers() = default;

void FormTimers::Add(const Form& form) {
    for (Control* control : form.Controls()) {
        if (control->Kind() == ControlKind::kTimer) {
            drives_[control] = std::make_unique<Drive>(loop_, static_cast<Timer&>(*control));
        }
    }
}

void FormTimers::Remove(const Form& form) {
    for (const Control* control : form.Controls()) {
        drives_.erase(control);
    }
}

void FormTimers::Update(const Control& control) {
    if (const auto found = drives_.find(&control); found != drives_.end()) {
        found->second->Update();
    }
}

}  // namespace horavex
