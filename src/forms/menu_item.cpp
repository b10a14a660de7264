#include "forms/menu_item.h"

#include <utility>

#include "forms/form.h"

namespace horavex {

MenuItem::MenuItem(Element& parent, ControlName name, ControlValues definition)
    : Control(ControlKind::kMenuItem, parent, std::move(name), std::move(definition)) {}

std::vector<MenuItem*> MenuItem::Entries() const {
    std::vector<MenuItem*> entries;
    for (Control* control : ParentForm().Controls()) {
        if (&control->Parent() == this) {
            entries.push_back(static_cast<MenuItem*>(control));
        }
    }
    return entries;
}

void MenuItem::UserClick() {
    if (AcceptsUser()) {
        Fire(onClick);
    }
}

bool MenuItem::LetsUserIn() const {
    return ParentForm().LetsUserIn();
}

}  // namespace horavex
