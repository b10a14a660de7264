#include "terminal/ports/faceless_forms.h"

#include <utility>

namespace horavex {

FacelessForms::FacelessForms(PollEventLoop& loop, std::function<void(const Form&)> onBroughtUp)
    : onBroughtUp_(std::move(onBroughtUp)), timers_(loop) {
    InstallFormHost(this);
}

FacelessForms::~FacelessForms() {
    InstallFormHost(nullptr);
}

void FacelessForms::Loaded(Form& form) {
    timers_.Add(form);
    form.SetObserver(&observer_);
}

void FacelessForms::Unloaded(Form& form) {
    form.SetObserver(nullptr);
    timers_.Remove(form);
}

void FacelessForms::RunModal(Form& form) {
    form.UserClose();
    form.Hide();
}

}  // namespace horavex
