#pragma once

#include <string>

#include "forms/form.h"
#include "forms/menu_item.h"
#include "soak/chance.h"

namespace horavex {

/// A user who presses, types, picks and drags whatever is there, by chance.
class Monkey {
public:
    explicit Monkey(Chance& chance) : chance_(chance) {}

    /// Does one thing to a form. Returns what, before it is done, through did.
    void ActOn(Form& form, std::string& did);

    /// Chooses in a menu that is open, in those that it leads to as well, or closes it.
    void ChooseIn(MenuItem& menu, std::string& did);

private:
    void ActOn(Control& control);
    void ActOnWindow(Form& form);
    template <class Box>
    void TypeInto(Box& box);
    template <class Choice>
    void PickFrom(Choice& list);
    template <class Thumb>
    void Move(Thumb& range);
    std::string Text();

    Chance& chance_;
};

}  // namespace horavex
