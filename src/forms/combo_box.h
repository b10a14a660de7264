#pragma once

#include "forms/list.h"

namespace horavex {

/// A list under an editable text. Choosing an item takes over its text and fires onClick alone;
/// any other change of the text fires onChange alone. A box whose definition says that nothing is
/// typed has its text from the list alone.
class ComboBox : public List {
public:
    ComboBox(Element& parent, ControlName name, ControlValues definition = {});

    Handler onChange;

    const std::string& Text() const override { return Now().text; }

    /// The selection follows the text: the first item that equals it, or none.
    void SetText(const std::string& text) override;

    /// Empties the text as well.
    void Clear() override;

    /// Its height is fixed: throws NoSuchPropertyFault.
    void SetHeight(double height) override;

    bool Typed() const { return Now().typed; }

    /// As those of a text box; ignored where nothing is typed.
    void UserType(const std::string& text);
    void UserEdit(const std::string& text);

private:
    void Selected() override;
    int IndexOf(const std::string& text) const;
};

}  // namespace horavex
