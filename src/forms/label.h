#pragma once

#include <utility>

#include "forms/control.h"

namespace horavex {

/// A caption that can be clicked.
class Label : public Control {
public:
    Label(Element& parent, ControlName name, ControlValues definition = {})
        : Label(ControlKind::kLabel, parent, std::move(name), std::move(definition)) {}

    Handler onClick;

    void UserClick() {
        if (AcceptsUser()) {
            Fire(onClick);
        }
    }

protected:
    Label(ControlKind kind, Element& parent, ControlName name, ControlValues definition)
        : Control(kind, parent, std::move(name), std::move(definition)) {}
};

/// A label in the look of the skin.
class SkinLabel : public Label {
public:
    SkinLabel(Element& parent, ControlName name, ControlValues definition = {})
        : Label(ControlKind::kSkinLabel, parent, std::move(name), std::move(definition)) {}
};

}  // namespace horavex
