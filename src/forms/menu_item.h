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

    /// What a menu shows at its far edge, beside the caption; empty for nothing.
    const std::string& Aside() const { return Now().text; }
    void SetAside(std::string text) { Assign(&ControlValues::text, std::move(text)); }

    /// What is told of the entry while it is pointed at; empty for nothing.
    const std::string& Hint() const { return Now().toolTipText; }
    void SetHint(std::string text) { Assign(&ControlValues::toolTipText, std::move(text)); }

    /// The entries directly inside, in the form's order.
    std::vector<MenuItem*> Entries() const;

    void UserClick();

    /// A disabled menu can still be popped up, and its entries chosen.
    bool LetsUserIn() const override;
};

}  // namespace horavex
