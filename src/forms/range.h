#pragma once

#include <optional>

#include "forms/focusable.h"

namespace horavex {

/// A whole number between two limits. Either limit may be the greater one.
class Range : public Focusable {
public:
    using Focusable::Focusable;

    /// Fires on every change of the value, by a user, by code or by a limit that clips it.
    Handler onChange;

    int Value() const { return Now().value; }

    /// A value outside the limits is clipped.
    void SetValue(int value);

    int Min() const { return Now().min; }
    int Max() const { return Now().max; }
    void SetMin(int min) { SetLimit(&ControlValues::min, min); }
    void SetMax(int max) { SetLimit(&ControlValues::max, max); }

protected:
    int Clip(int value) const;

private:
    void SetLimit(int ControlValues::*limit, int value);
};

/// A range that a user moves, by a thumb or by steps.
class MovableRange : public Range {
public:
    using Range::Range;

    /// Fires while a user drags the thumb; onChange then waits for the thumb to be let go.
    Handler onScroll;

    int SmallStep() const { return Now().smallStep; }
    int LargeStep() const { return Now().largeStep; }
    void SetSmallStep(int step) { Assign(&ControlValues::smallStep, step); }
    void SetLargeStep(int step) { Assign(&ControlValues::largeStep, step); }

    /// The thumb stands at a value and is still held.
    void UserDrag(int value);

    /// The thumb was let go at a value, or a step led there.
    void UserSlide(int value);

protected:
    void Restore() override;

private:
    std::optional<int> valueBeforeDrag_;
};

class ScrollBar : public MovableRange {
public:
    ScrollBar(Element& parent, ControlName name, ControlValues definition = {});
};

class Slider : public MovableRange {
public:
    Slider(Element& parent, ControlName name, ControlValues definition = {});
};

class ProgressBar : public Range {
public:
    ProgressBar(Element& parent, ControlName name, ControlValues definition = {});
};

}  // namespace horavex
