#include "forms/focusable.h"

#include "forms/form.h"

namespace horavex {

void Focusable::SetFocus() {
    if (ParentForm().Visible() && AcceptsUser()) {
        OwnerForm().MoveFocus(this);
    }
}

bool Focusable::HasFocus() const {
    return ParentForm().FocusHolder() == this;
}

void Focusable::UserLeave() {
    if (HasFocus()) {
        OwnerForm().MoveFocus(nullptr);
    }
}

void Focusable::UserKeyUp() {
    if (AcceptsUser()) {
        Fire(onKeyUp);
    }
}

bool Focusable::BeginUserAction() {
    if (!AcceptsUser()) {
        return false;
    }
    SetFocus();
    return AcceptsUser();  // a handler of the focus may have shut the control
}

void Focusable::Edit(const std::string& text) {
    if (BeginUserAction()) {
        SetText(text);
    }
}

void Focusable::Type(const std::string& text) {
    Edit(text);
    UserKeyUp();
}

}  // namespace horavex
