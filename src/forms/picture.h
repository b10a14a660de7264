#pragma once

#include <functional>
#include <utility>

#include "forms/control.h"
#include "forms/drawing.h"

namespace horavex {

/// A picture file, a drawing of the program over it, or both.
class Picture : public Control {
public:
    Picture(Element& parent, ControlName name, ControlValues definition = {})
        : Control(ControlKind::kPicture, parent, std::move(name), std::move(definition)) {}

    Handler onClick;

    /// The pointer stands at a place of the inside, in twips.
    std::function<void(Point)> onMouseMove;

    /// Stays until it is changed or the form unloads; Refresh shows a change.
    Drawing drawing;

    const std::string& PictureName() const { return Now().picture; }
    void SetPictureName(std::string name) { Assign(&ControlValues::picture, std::move(name)); }

    void UserClick() {
        if (AcceptsUser()) {
            Fire(onClick);
        }
    }

    void UserMouseMove(Point at) {
        if (AcceptsUser() && onMouseMove) {
            Fire([this, at] { onMouseMove(at); });
        }
    }

protected:
    void Restore() override {
        Control::Restore();
        drawing.clear();
    }
};

}  // namespace horavex
