#pragma once

#include <map>
#include <memory>

#include "forms/form.h"
#include "forms/timer.h"
#include "terminal/ports/poll_event_loop.h"

namespace horavex {

/// Measures the time of the timer controls of forms.
class FormTimers {
public:
    explicit FormTimers(PollEventLoop& loop);
    ~FormTimers();
    FormTimers(const FormTimers&) = delete;
    FormTimers& operator=(const FormTimers&) = delete;

    /// From a form's load to its unload.
    void Add(const Form& form);
    void Remove(const Form& form);

    /// A control of such a form has changed. A timer that goes on with the same interval is not
    /// disturbed.
    void Update(const Control& control);

private:
    class Drive;

    PollEventLoop& loop_;
    std::map<const Control*, std::unique_ptr<Drive>> drives_;
};

}  // namespace horavex
