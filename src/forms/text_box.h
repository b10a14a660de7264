#pragma once

#include "forms/focusable.h"

namespace horavex {

class TextBox : public Focusable {
public:
    TextBox(Element& parent, ControlName name, ControlValues definition = {});

    /// Fires on every change of the text, by a user or by code.
    Handler onChange;

    const std::string& Text() const override { return Now().text; }
    void SetText(const std::string& text) override;

    /// The line where the present stands, from 0; -1 for none. For boxes of several lines.
    int MarkedLine() const { return Now().listIndex; }
    void SetMarkedLine(int line) { Assign(&ControlValues::listIndex, line); }

    /// The whole text after a user's key: with the key's release, and without it where the
    /// front end reports that by UserKeyUp.
    void UserType(const std::string& text) { Type(text); }
    void UserEdit(const std::string& text) { Edit(text); }
};

}  // namespace horavex
