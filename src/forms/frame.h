#pragma once

#include <utility>

#include "forms/control.h"

namespace horavex {

/// A box with a caption around other controls. It has no scale size: what lies inside is
/// measured against its size.
class Frame : public Control {
public:
    Frame(Element& parent, ControlName name, ControlValues definition = {})
        : Control(ControlKind::kFrame, parent, std::move(name), std::move(definition)) {}
};

/// A mere outline, never in the order of the keyboard.
class Shape : public Control {
public:
    Shape(Element& parent, ControlName name, ControlValues definition = {})
        : Control(ControlKind::kShape, parent, std::move(name), std::move(definition)) {}
};

}  // namespace horavex
