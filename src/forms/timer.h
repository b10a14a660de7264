#pragma once

#include "forms/control.h"

namespace horavex {

/// Fires again and again while its form is loaded. The front end measures the time, reads
/// Running and Interval on every change of the control, and calls Tick.
class Timer : public Control {
public:
    Timer(Element& parent, ControlName name, ControlValues definition = {});

    Handler onTimer;

    /// Milliseconds between ticks; 0 for none.
    int Interval() const { return Now().intervalMs; }
    void SetInterval(int milliseconds) { Assign(&ControlValues::intervalMs, milliseconds); }

    bool Running() const;

    /// The interval is over. Ignored unless the timer is running, so that a late tick of a
    /// stopped timer does no harm.
    void Tick();
};

}  // namespace horavex
