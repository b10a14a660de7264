#pragma once

#include <functional>
#include <utility>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/range.h"

namespace horavex {

/// What the handlers of a window share whose controls stand for values: what the user does with a
/// control changes a value, and then all controls show the values anew. What the program itself
/// moves meanwhile changes nothing.
class EditedValues {
public:
    explicit EditedValues(std::function<void()> show) : show_(std::move(show)) {}

    /// A fault on the way leaves the controls to the user again.
    void Show() {
        const Showing scope(showing_);
        show_();
    }

    /// In a fresh process.
    void Reset() { showing_ = false; }

    /// A handler of a control.
    template <class Change>
    Handler Editing(Change change) {
        return [this, change] {
            if (!showing_) {
                change();
                Show();
            }
        };
    }

    /// A bar writes a value while its thumb is dragged, too.
    template <class Value>
    void BindBar(ScrollBar& bar, Value& value, double stepsPerUnit = 1.0) {
        bar.onChange = Editing([&bar, &value, stepsPerUnit] {
            value = static_cast<Value>(bar.Value() / stepsPerUnit);
        });
        bar.onScroll = bar.onChange;
    }

    void BindCheck(CheckBox& box, bool& value) {
        box.onClick = Editing([&box, &value] { value = box.Value() == 1; });
    }

    /// The rows of the list are the choices in their order.
    template <class Choice>
    void BindChoice(ComboBox& box, Choice& value) {
        box.onClick = Editing([&box, &value] { value = static_cast<Choice>(box.ListIndex()); });
    }

private:
    struct Showing {
        explicit Showing(bool& flag) : flag_(flag) { flag_ = true; }
        ~Showing() { flag_ = false; }
        bool& flag_;
    };

    std::function<void()> show_;
    bool showing_ = false;  // the program itself moves the controls
};

}  // namespace horavex
