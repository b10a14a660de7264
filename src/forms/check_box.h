#pragma once

#include "forms/focusable.h"

namespace horavex {

/// A box that is 0, clear, or 1, ticked.
class CheckBox : public Focusable {
public:
    CheckBox(Element& parent, ControlName name, ControlValues definition = {});

    /// Fires on every change of the value, by a user or by code.
    Handler onClick;

    int Value() const { return Now().value; }

    /// A value beyond 0 and 1 is clipped.
    void SetValue(int value);

    void UserClick();
};

}  // namespace horavex
