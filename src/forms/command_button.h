#pragma once

#include <utility>

#include "forms/focusable.h"

namespace horavex {

class CommandButton : public Focusable {
public:
    CommandButton(Element& parent, ControlName name, ControlValues definition = {})
        : Focusable(ControlKind::kCommandButton, parent, std::move(name), std::move(definition)) {}

    Handler onClick;

    void UserClick() {
        if (BeginUserAction()) {
            Fire(onClick);
        }
    }
};

}  // namespace horavex
