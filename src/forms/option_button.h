#pragma once

#include "forms/focusable.h"

namespace horavex {

/// One of a group of which at most one is set. The options of a group share their parent.
class OptionButton : public Focusable {
public:
    OptionButton(Element& parent, ControlName name, ControlValues definition = {});

    /// Fires when the option becomes set, never when it is cleared.
    Handler onClick;

    bool Value() const { return Now().value != 0; }

    /// Setting an option clears the others of its group in silence, then fires onClick once.
    void SetValue(bool set);

    void UserClick();

private:
    void ClearGroup();
};

}  // namespace horavex
