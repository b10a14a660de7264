#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "base/program_state.h"
#include "forms/control_array.h"
#include "forms/focusable.h"

namespace horavex {

namespace {

FormHost* host = nullptr;
Form* activeForm = nullptr;
std::function<void(Form&)> pressedHelpKey;

const ProgramStateReset reset([] {
    activeForm = nullptr;
    pressedHelpKey = nullptr;
});

ControlValues Hidden(ControlValues definition) {
    definition.visible = false;
    return definition;
}

}  // namespace

void InstallFormHost(FormHost* newHost) {
    host = newHost;
}

Form* ActiveForm() {
    return activeForm;
}

void InstallHelpKey(std::function<void(Form&)> helpKey) {
    pressedHelpKey = std::move(helpKey);
}

Form::Form(std::string name, ControlValues definition)
    : Element(ControlKind::kForm, std::move(name), Hidden(std::move(definition))) {}

Form::~Form() {
    if (activeForm == this) {
        activeForm = nullptr;
    }
}

void Form::Load() {
    if (unloadPending_) {
        FinishUnload();
    }
    if (loaded_) {
        return;
    }
    loaded_ = true;
    if (host != nullptr) {
        host->Loaded(*this);
    }
    Run(onLoad);
}

void Form::Unload(CloseReason reason) {
    if (!loaded_ || closing_) {
        return;
    }
    closing_ = true;
    try {
        closing_ = AgreesToClose(reason);
    } catch (...) {
        closing_ = false;
        throw;
    }
    if (closing_ && runningHandlers_ > 0) {
        unloadPending_ = true;
    } else if (closing_) {
        FinishUnload();
    }
}

bool Form::AgreesToClose(CloseReason reason) {
    CloseRequest request{reason};
    if (onCloseRequest) {
        Run([&request, handler = onCloseRequest] { handler(request); });
    }
    return !request.cancel;
}

// The form goes even if its unload handler fails; a window that cannot be closed helps nobody.
void Form::FinishUnload() {
    unloadPending_ = false;
    try {
        Run(onUnload);
    } catch (...) {
        Vanish();
        throw;
    }
    Vanish();
}

void Form::Vanish() {
    Assign(&ControlValues::visible, false);
    loaded_ = closing_ = modal_ = false;
    owner_ = nullptr;
    focus_ = nullptr;
    if (activeForm == this) {
        activeForm = nullptr;
    }
    if (host != nullptr) {
        host->Unloaded(*this);
    }
    RestoreAll();
}

void Form::RestoreAll() {
    for (RuntimeMembers* array : arrays_) {
        array->DropRuntimeMembers();
    }
    for (Control* control : controls_) {
        static_cast<Element*>(control)->Restore();
    }
    Restore();
    drawing.clear();
}

void Form::Show(Form* owner) {
    Present(owner, false);
}

void Form::ShowModal(Form* owner) {
    if (Visible() && modal_) {
        Present(owner_, true);  // it runs already, and ends once
        return;
    }
    Present(owner, true);
    if (host != nullptr && Visible()) {
        host->RunModal(*this);
    }
}

void Form::Present(Form* owner, bool modal) {
    Load();
    owner_ = owner;
    modal_ = modal;
    Assign(&ControlValues::visible, true);
    if (host != nullptr) {
        host->BroughtUp(*this);
    }
    Activate();
}

void Form::Hide() {
    if (!Assign(&ControlValues::visible, false)) {
        return;
    }
    modal_ = false;
    if (activeForm == this) {
        activeForm = nullptr;
    }
    MoveFocus(nullptr);
}

void Form::SetVisible(bool visible) {
    if (!visible) {
        Hide();
    } else if (!Visible()) {
        Show(owner_);
    }
}

void Form::Activate() {
    if (Visible() && activeForm != this) {
        activeForm = this;
        Run(onActivate);
    }
}

void Form::UserHelp() {
    if (pressedHelpKey) {
        Run([this] { pressedHelpKey(*this); });
    }
}

void Form::SetWindowState(WindowState state) {
    if (Assign(&ControlValues::windowState, static_cast<int>(state))) {
        Resized();
    }
}

void Form::Paint() {
    drawing.clear();
    Run(onPaint);
}

void Form::MoveFocus(Focusable* next) {
    if (focus_ == next) {
        return;
    }
    Focusable* const previous = std::exchange(focus_, next);
    Changed();
    if (previous != nullptr) {
        Run(previous->onLostFocus);
    }
    // The handler may have sent the focus elsewhere.
    if (next != nullptr && focus_ == next) {
        Run(next->onGotFocus);
    }
}

// A copy of the handler runs, so that a handler may replace itself.
void Form::Run(const Handler& handler) {
    if (!handler) {
        return;
    }
    const Handler running = handler;
    ++runningHandlers_;
    try {
        running();
    } catch (...) {
        HandlerReturned();
        throw;
    }
    HandlerReturned();
}

void Form::HandlerReturned() {
    --runningHandlers_;
    if (runningHandlers_ == 0 && unloadPending_) {
        FinishUnload();
    }
}

void Form::Add(Control& control) {
    controls_.push_back(&control);
    Changed();
}

void Form::Remove(Control& control) {
    controls_.erase(std::find(controls_.begin(), controls_.end(), &control));
    if (focus_ == &control) {
        focus_ = nullptr;
    }
}

int Form::NextTabIndex() const {
    return static_cast<int>(
        std::count_if(controls_.begin(), controls_.end(),
                      [](const Control* control) { return control->Has(Property::kTabIndex); }));
}

void Form::ControlHasChanged(Control& control) {
    if (observer_ != nullptr) {
        observer_->ControlChanged(control);
    }
}

void Form::Changed() {
    if (observer_ != nullptr) {
        observer_->FormChanged();
    }
}

}  // namespace horavex
