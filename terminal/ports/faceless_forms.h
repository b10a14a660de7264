#pragma once

#include <functional>

#include "forms/form_host.h"
#include "terminal/ports/form_timers.h"

namespace horavex {

/// Forms live without a window, and their timers tick. One that waits for the user is closed as the
/// user would close it. Installed as the forms' host as long as it lives.
class FacelessForms : public FormHost {
public:
    /// onBroughtUp is told of each form that would come on view.
    explicit FacelessForms(
        PollEventLoop& loop, std::function<void(const Form&)> onBroughtUp = [](const Form&) {});
    ~FacelessForms() override;
    FacelessForms(const FacelessForms&) = delete;
    FacelessForms& operator=(const FacelessForms&) = delete;

    void Loaded(Form& form) override;
    void Unloaded(Form& form) override;
    void BroughtUp(Form& form) override { onBroughtUp_(form); }
    void RunModal(Form& form) override;

private:
    /// Tells the timers of the changes of a form.
    class Observer : public FormObserver {
    public:
        explicit Observer(FormTimers& timers) : timers_(timers) {}
        void ControlChanged(Control& control) override { timers_.Update(control); }
        void FormChanged() override {}

    private:
        FormTimers& timers_;
    };

    const std::function<void(const Form&)> onBroughtUp_;
    FormTimers timers_;
    Observer observer_{timers_};  // of all of them
};

}  // namespace horavex
