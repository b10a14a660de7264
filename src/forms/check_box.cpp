#include "forms/check_box.h"

#include <algorithm>
#include <utility>

namespace horavex {

CheckBox::CheckBox(Element& parent, ControlName name, ControlValues definition)
    : Focusable(ControlKind::kCheckBox, parent, std::move(name), std::move(definition)) {}

void CheckBox::SetValue(int value) {
    if (Assign(&ControlValues::value, std::clamp(value, 0, 1))) {
        Fire(onClick);
    }
}

void CheckBox::UserClick() {
    if (BeginUserAction()) {
        SetValue(1 - Value());
    }
}

}  // namespace horavex
