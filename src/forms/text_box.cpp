#include "forms/text_box.h"

#include <utility>

namespace horavex {

TextBox::TextBox(Element& parent, ControlName name, ControlValues definition)
    : Focusable(ControlKind::kTextBox, parent, std::move(name), std::move(definition)) {}

void TextBox::SetText(const std::string& text) {
    if (Assign(&ControlValues::text, text)) {
        Fire(onChange);
    }
}

}  // namespace horavex
