#include "forms/option_button.h"

#include <utility>

#include "forms/form.h"

namespace horavex {

OptionButton::OptionButton(Element& parent, ControlName name, ControlValues definition)
    : Focusable(ControlKind::kOptionButton, parent, std::move(name), std::move(definition)) {}

void OptionButton::SetValue(bool set) {
    if (set == Value()) {
        return;
    }
    if (!set) {
        Assign(&ControlValues::value, 0);
        return;
    }
    ClearGroup();
    Assign(&ControlValues::value, 1);
    Fire(onClick);
}

void OptionButton::ClearGroup() {
    for (Control* control : OwnerForm().Controls()) {
        if (control->Kind() == ControlKind::kOptionButton && &control->Parent() == &Parent()) {
            static_cast<OptionButton*>(control)->Assign(&ControlValues::value, 0);
        }
    }
}

void OptionButton::UserClick() {
    if (BeginUserAction()) {
        SetValue(true);
    }
}

}  // namespace horavex
