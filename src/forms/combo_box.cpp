#include "forms/combo_box.h"

#include <algorithm>
#include <utility>

namespace horavex {

ComboBox::ComboBox(Element& parent, ControlName name, ControlValues definition)
    : List(ControlKind::kComboBox, parent, std::move(name), std::move(definition)) {}

void ComboBox::SetText(const std::string& text) {
    if (Assign(&ControlValues::text, text)) {
        Assign(&ControlValues::listIndex, IndexOf(text));
        Fire(onChange);
    }
}

void ComboBox::Clear() {
    List::Clear();
    SetText("");
}

void ComboBox::UserType(const std::string& text) {
    if (Typed()) {
        Type(text);
    }
}

void ComboBox::UserEdit(const std::string& text) {
    if (Typed()) {
        Edit(text);
    }
}

void ComboBox::SetHeight(double) {
    throw NoSuchPropertyFault(Name(), Property::kPlace);
}

void ComboBox::Selected() {
    Assign(&ControlValues::text, ListIndex() == -1 ? std::string() : ListItem(ListIndex()));
}

int ComboBox::IndexOf(const std::string& text) const {
    const auto found = std::find(Items().begin(), Items().end(), text);
    return found == Items().end() ? -1 : static_cast<int>(found - Items().begin());
}

}  // namespace horavex
