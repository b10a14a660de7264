#include "forms/timer.h"

#include <utility>

#include "forms/form.h"

namespace horavex {

Timer::Timer(Element& parent, ControlName name, ControlValues definition)
    : Control(ControlKind::kTimer, parent, std::move(name), std::move(definition)) {}

bool Timer::Running() const {
    return Enabled() && Interval() > 0 && ParentForm().IsLoaded();
}

void Timer::Tick() {
    if (Running()) {
        Fire(onTimer);
    }
}

}  // namespace horavex
