#include "forms/range.h"

#include <algorithm>
#include <utility>

namespace horavex {

int Range::Clip(int value) const {
    const auto [lowest, highest] = std::minmax({Min(), Max()});
    return std::clamp(value, lowest, highest);
}

void Range::SetValue(int value) {
    if (Assign(&ControlValues::value, Clip(value))) {
        Fire(onChange);
    }
}

void Range::SetLimit(int ControlValues::*limit, int value) {
    if (Assign(limit, value)) {
        SetValue(Value());
    }
}

void MovableRange::UserDrag(int value) {
    if (!BeginUserAction()) {
        return;
    }
    const int before = Value();
    if (Assign(&ControlValues::value, Clip(value))) {
        valueBeforeDrag_ = valueBeforeDrag_.value_or(before);
        Fire(onScroll);
    }
}

void MovableRange::UserSlide(int value) {
    if (!BeginUserAction()) {
        return;
    }
    const int before = std::exchange(valueBeforeDrag_, std::nullopt).value_or(Value());
    Assign(&ControlValues::value, Clip(value));
    if (Value() != before) {
        Fire(onChange);
    }
}

void MovableRange::Restore() {
    Range::Restore();
    valueBeforeDrag_.reset();
}

ScrollBar::ScrollBar(Element& parent, ControlName name, ControlValues definition)
    : MovableRange(ControlKind::kScrollBar, parent, std::move(name), std::move(definition)) {}

Slider::Slider(Element& parent, ControlName name, ControlValues definition)
    : MovableRange(ControlKind::kSlider, parent, std::move(name), std::move(definition)) {}

ProgressBar::ProgressBar(Element& parent, ControlName name, ControlValues definition)
    : Range(ControlKind::kProgressBar, parent, std::move(name), std::move(definition)) {}

}  // namespace horavex
