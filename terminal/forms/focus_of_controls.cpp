#include <wctype.h>

#include <algorithm>
#include <cstdlib>

#include "forms/focusable.h"
#include "terminal/forms/caption_widgets.h"
#include "terminal/forms/controls_sheet.h"
#include "terminal/forms/list_widgets.h"

// Where the keys of a window go.

namespace horavex {

namespace {

/// The number of the page that a node lies on; nothing for one on none of them.
std::optional<std::size_t> PageWith(const LayoutNode& pages, const LayoutNode& node) {
    const auto holds = [&node](const auto& self, const LayoutNode& at) -> bool {
        return &at == &node ||
               std::any_of(at.children.begin(), at.children.end(),
                           [&](const LayoutNode& child) { return self(self, child); });
    };
    for (std::size_t page = 0; page < pages.children.size(); ++page) {
        if (holds(holds, pages.children[page])) {
            return page;
        }
    }
    return std::nullopt;
}

}  // namespace

bool ControlsSheet::CanTakeKeys(const Widget& widget) const {
    const Control* control = widget.Bound();
    for (const Control* at = control; at != nullptr;
         at = dynamic_cast<const Control*>(&at->Parent())) {
        if (at->Has(Property::kVisible) && !at->Visible()) {
            return false;
        }
    }
    return widget.IsShown() && (control == nullptr || control->AcceptsUser());
}

Widget* ControlsSheet::WidgetOf(const Control* control) const {
    const auto found = std::find_if(order_.begin(), order_.end(), [control](const Widget* widget) {
        return widget->Bound() == control;
    });
    return control == nullptr || found == order_.end() ? nullptr : *found;
}

/// The form knows of the controls alone. Before it has been told of one, the first of the order
/// has the focus.
Widget* ControlsSheet::Focused() const {
    if (Widget* holder = WidgetOf(Shown().FocusHolder())) {
        return holder;
    }
    if (ownFocus_ != nullptr && CanTakeKeys(*ownFocus_)) {
        return ownFocus_;
    }
    const auto first = std::find_if(order_.begin(), order_.end(),
                                    [this](const Widget* widget) { return CanTakeKeys(*widget); });
    return first == order_.end() ? nullptr : *first;
}

void ControlsSheet::MoveFocus(Widget& widget) {
    Focusable* const holder = Shown().FocusHolder();
    auto* const next = dynamic_cast<Focusable*>(widget.Bound());
    ownFocus_ = &widget;
    if (next != nullptr) {
        next->UserFocus();
    } else if (holder != nullptr) {
        holder->UserLeave();
    }
}

// From the tabs the way goes on to the page on view.
void ControlsSheet::StepFocus(int step) {
    const auto count = static_cast<int>(order_.size());
    const Widget* const from = Focused();
    const bool fromTabs = step > 0 && dynamic_cast<const PagesWidget*>(from) != nullptr;
    const auto at = std::find(order_.begin(), order_.end(), from);
    int place = at == order_.end() ? 0 : static_cast<int>(at - order_.begin());
    for (int tried = 0; tried < count; ++tried) {
        place = (place + step + count) % count;
        Widget& widget = *order_[static_cast<std::size_t>(place)];
        if (CanTakeKeys(widget) && (!fromTabs || IsOnView(widget))) {
            MoveFocus(widget);
            return;
        }
    }
}

bool ControlsSheet::IsOnView(const Widget& widget) const {
    return arrangement_.Areas().contains(&widget.Node());
}

/// To the nearest widget in the direction of an arrow key; a window that goes from page to page may
/// have buttons for two of them.
bool ControlsSheet::StepBeside(const KeyPress& key) {
    const bool sideways = key.code == KeyCode::kLeft || key.code == KeyCode::kRight;
    if (sideways &&
        PressButton("pressedBy", (key.code == KeyCode::kLeft) != fromRight_ ? "back" : "on")) {
        return true;
    }
    const Widget* const focused = Focused();
    if (focused == nullptr || !IsOnView(*focused)) {
        return false;
    }
    const Area from = arrangement_.Areas().at(&focused->Node());
    const int sign = key.code == KeyCode::kUp || key.code == KeyCode::kLeft ? -1 : 1;
    Widget* nearest = nullptr;
    int least = 100000;
    for (Widget* widget : order_) {
        if (widget == focused || !IsOnView(*widget) || !CanTakeKeys(*widget)) {
            continue;
        }
        const Area to = arrangement_.Areas().at(&widget->Node());
        const int along = sign * (sideways ? to.column - from.column : to.row - from.row);
        const int across = std::abs(sideways ? to.row - from.row : to.column - from.column);
        const int far = sideways ? along + 200 * across : 200 * along + across;
        if (along > 0 && (!sideways || across == 0) && far < least) {
            least = far;
            nearest = widget;
        }
    }
    if (nearest != nullptr) {
        MoveFocus(*nearest);
    }
    return nearest != nullptr;
}

void ControlsSheet::TurnToPageOf(const Widget& widget) {
    for (const auto& pages : widgets_) {
        auto* tabs = dynamic_cast<PagesWidget*>(pages.get());
        const auto page = tabs == nullptr ? std::nullopt : PageWith(tabs->Node(), widget.Node());
        if (page && *page != tabs->Page()) {
            tabs->TurnTo(*page);
            Around().desk.Invalidate();
        }
    }
}

/// A window that is higher than the screen is moved through before its tabs are turned.
void ControlsSheet::TurnPages(int step) {
    if (Scroll(step * std::max(1, rows_ - 1))) {
        TakeFocusAlong(step);
        return;
    }
    for (Widget* widget : order_) {
        const auto* tabs = dynamic_cast<TabsWidget*>(widget);
        if (tabs != nullptr && tabs->HasTabBeside(step) && CanTakeKeys(*widget)) {
            MoveFocus(*widget);
            widget->Press({(step < 0) != fromRight_ ? KeyCode::kLeft : KeyCode::kRight});
            return;
        }
    }
}

/// False at the end of the window.
bool ControlsSheet::Scroll(int rows) {
    const int before = first_;
    first_ = std::clamp(first_ + rows, 0, whole_ - rows_);
    return first_ != before;
}

/// To the nearest control on view in a direction that leaves the page keys to the window.
void ControlsSheet::TakeFocusAlong(int step) {
    Widget* nearest = nullptr;
    int least = whole_;
    for (Widget* widget : order_) {
        if (!IsOnView(*widget) || !CanTakeKeys(*widget) || widget->UsesPageKeys()) {
            continue;
        }
        const Area& area = arrangement_.Areas().at(&widget->Node());
        const int far = step * (area.row - seenAt_.row);
        if (area.row >= first_ && area.row + area.height <= first_ + rows_ && far > 0 &&
            far < least) {
            least = far;
            nearest = widget;
        }
    }
    if (nearest != nullptr) {
        MoveFocus(*nearest);
    }
}

/// A label's key goes to what the label stands before. One on view comes before those on other
/// pages.
bool ControlsSheet::PressAccessKey(char32_t letter) {
    const auto capital = static_cast<char32_t>(::towupper(static_cast<wint_t>(letter)));
    if (capital == 0) {
        return false;  // control and blank; a widget without a key has none either
    }
    for (const bool onView : {true, false}) {
        for (const auto& widget : widgets_) {
            const Control* control = widget->Bound();
            if (AccessKey(widget->KeyText()) != capital || IsOnView(*widget) != onView ||
                !CanTakeKeys(*widget)) {
                continue;
            }
            const std::string buddy = widget->Node().Property("buddy");
            Widget* const reached =
                buddy.empty() ? widget.get() : WidgetOf(FindControl(Shown(), buddy));
            if (reached != nullptr && control != nullptr) {
                MoveFocus(*reached);
                reached->Reach();
                return true;
            }
        }
    }
    return false;
}

bool ControlsSheet::PressButton(const char* property, const char* value) {
    for (const auto& widget : widgets_) {
        auto* button = dynamic_cast<ButtonWidget*>(widget.get());
        if (button != nullptr && button->Node().Property(property) == value &&
            CanTakeKeys(*button)) {
            button->Click();
            return true;
        }
    }
    return false;
}

void ControlsSheet::PressEnter() {
    Widget* const focused = Focused();
    if (auto* button = dynamic_cast<ButtonWidget*>(focused)) {
        button->Click();
    } else if (!PressButton("default")) {
        auto* list = focused == nullptr ? nullptr : dynamic_cast<ListBox*>(focused->Bound());
        if (list != nullptr) {
            list->UserDoubleClick();
        }
    }
}

}  // namespace horavex
