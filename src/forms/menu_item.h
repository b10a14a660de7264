#pragma once

#include <vector>

#include "forms/control.h"

namespace horavex {

/// A menu entry, or a menu if other entries lie inside it.
class MenuItem : public Control {
public:
    MenuItem(Element& parent, ControlName name, ControlValues definition = {});

    Handler onClick;

    bool Checked() const { return Now().checked; }
    void SetChecked(bool checked) { Assign(&ControlValues::checked, checked); }

    /// Name of the picture shown while the entry is not checked; empty for none.
    const std::string& Picture() const { return Now().picture; }
    void SetPicture(std::string name) { Assign(&ControlValues::picture, std::move(name)); }

    /// The entries directly inside, in the form's order.
    std::vector<MenuItem*> Entries() const;

    void UserClick();

    /// A disabled menu can still be popped up, and its entries chosen.
    bool LetsUserIn() const override;
};

}  // namespace horavex
