#include "terminal/forms/controls_sheet.h"

#include <algorithm>
#include <cstdlib>

#include "forms/focusable.h"
#include "platform/platform.h"
#include "terminal/forms/direction.h"
#include "terminal/forms/list_widgets.h"
#include "terminal/screen/glyphs.h"
#include "terminal/sheets/choice_sheet.h"

namespace horavex {

namespace {

constexpr int kSide = 2;   // columns between the window's frame and its inside
constexpr int kEdges = 2;  // rows of its upper and lower edge
constexpr int kLeastWidth = 36;

int TabIndexOf(const Widget& widget) {
    const Control* control = widget.Bound();
    return control != nullptr && control->Has(Property::kTabIndex) ? control->TabIndex() : -1;
}

}  // namespace

ControlsSheet::ControlsSheet(Form& form, LayoutNode layout, Host& host)
    : FormSheet(form, host),
      layout_(std::move(layout)),
      widgets_(MakeWidgets(form, layout_, *this)) {
    for (const auto& widget : widgets_) {
        nodes_[&widget->Node()] = widget.get();
        if (widget->TakesKeys()) {
            order_.push_back(widget.get());
        }
    }
    std::stable_sort(order_.begin(), order_.end(), [](const Widget* one, const Widget* other) {
        return TabIndexOf(*one) < TabIndexOf(*other);
    });
}

void ControlsSheet::Draw(Cells& screen) {
    if (IsEnded() || !Shown().Visible()) {
        return;
    }
    fromRight_ = CaptionsRunFromRight(Shown());
    const int mostWidth = screen.Columns() - 2 * (kSide + 1);
    const int mostHeight = screen.Rows() - kEdges - 1;  // a row below for what is told of the focus
    const int wanted =
        std::max(arrangement_.WantedWidth(layout_), WidthOf(Shown().Caption()) + kEdges + kSide);
    const int width = std::clamp(wanted, std::min(kLeastWidth, mostWidth), mostWidth);
    whole_ = ArrangeIn(width, mostHeight);
    rows_ = std::min(whole_, mostHeight);
    FollowFocus();
    const Area window{(screen.Rows() - 1 - rows_ - kEdges) / 2,
                      (screen.Columns() - width) / 2 - kSide - 1, rows_ + kEdges,
                      width + 2 * (kSide + 1)};
    Cells inside(whole_, width);
    DrawInside(inside);
    screen.Fill(window);
    screen.Copy(inside, {first_, 0, rows_, width}, {window.row + 1, window.column + 1 + kSide});
    if (const auto& cursor = inside.Cursor()) {
        screen.SetCursor(CellPlace{cursor->row - first_ + window.row + 1,
                                   cursor->column + window.column + 1 + kSide});
    }
    DrawFrame(screen, window);
}

int ControlsSheet::ArrangeIn(int width, int height) {
    return arrangement_.Arrange(layout_, width, height, fromRight_);
}

/// Wherever the focus has gone to, or what has it; a user may have scrolled away since.
void ControlsSheet::FollowFocus() {
    Widget* const focused = Focused();
    if (focused != nullptr && focused != seen_) {
        TurnToPageOf(*focused);
    }
    const auto found = focused == nullptr ? arrangement_.Areas().end()
                                          : arrangement_.Areas().find(&focused->Node());
    const Area area = found == arrangement_.Areas().end() ? Area() : found->second;
    if (focused != seen_ || area != seenAt_) {
        first_ = std::min(std::max(first_, area.row + std::max(area.height, 1) - rows_), area.row);
    }
    seen_ = focused;
    seenAt_ = area;
    first_ = std::clamp(first_, 0, whole_ - rows_);
}

// Frames come before what lies in them.
void ControlsSheet::DrawInside(Cells& inside) {
    const Widget* const focused = Focused();
    for (const auto& widget : widgets_) {
        const auto area = arrangement_.Areas().find(&widget->Node());
        if (area != arrangement_.Areas().end()) {
            widget->Draw(inside, area->second, widget.get() == focused);
        }
    }
}

void ControlsSheet::DrawFrame(Cells& screen, const Area& window) {
    const bool isFront = Around().desk.Front() == this;
    screen.Frame(window, Shown().Caption(), isFront ? Tone::kPlain : Tone::kFaint, Tone::kStrong);
    const int right = window.column + window.width - 1;
    if (first_ > 0) {
        screen.Put(window.row + 1, right, "▴", Tone::kAccent);
    }
    if (first_ + rows_ < whole_) {
        screen.Put(window.row + window.height - 2, right, "▾", Tone::kAccent);
    }
    const Widget* const focused = Focused();
    const std::string hint = isFront && focused != nullptr ? HintOf(*focused) : std::string();
    if (!hint.empty()) {
        screen.Fill({screen.Rows() - 1, 0, 1, screen.Columns()});
        screen.PutCentred(screen.Rows() - 1, 0, Clipped(hint, screen.Columns() - 2), Tone::kFaint,
                          screen.Columns());
    }
}

/// The names of the labels that it stands by, which may be far away in a narrow window, and what is
/// told about it.
std::string ControlsSheet::HintOf(const Widget& widget) const {
    const std::string names = CaptionsOf(Shown(), widget.Node().Property("namedBy"));
    const std::string told = widget.Hint();
    return names + (names.empty() || told.empty() ? "" : " · ") + told;
}

int ControlsSheet::Choose(const std::vector<std::string>& texts, int chosen,
                          const std::vector<std::string>& reasons) {
    return ChooseFrom(texts, chosen, reasons, fromRight_, Around());
}

void ControlsSheet::Steer(const std::string& control, const KeyPress& key) {
    for (const auto& widget : widgets_) {
        if (widget->Node().name == control && widget->IsShown()) {
            widget->Press(key);
            return;
        }
    }
}

double ControlsSheet::Seconds() const {
    return Ports().clock.SteadySeconds();
}

void ControlsSheet::Press(const KeyPress& key) {
    Widget* const focused = Focused();
    if (key.IsText() || key.code == KeyCode::kEnter) {
        seen_ = nullptr;  // what it changes comes into view
    }
    if (focused != nullptr && !key.alt && focused->Press(key)) {
        auto* focusable = dynamic_cast<Focusable*>(focused->Bound());
        if (!IsEnded() && focusable != nullptr) {
            focusable->UserKeyUp();
        }
        return;
    }
    PressElsewhere(key);
}

void ControlsSheet::PressElsewhere(const KeyPress& key) {
    switch (key.code) {
        case KeyCode::kTab:
        case KeyCode::kBackTab:
            StepFocus(key.code == KeyCode::kTab ? 1 : -1);
            break;
        case KeyCode::kUp:
        case KeyCode::kDown:
            if (!StepBeside(key)) {
                Scroll(key.code == KeyCode::kUp ? -1 : 1);
            }
            break;
        case KeyCode::kLeft:
        case KeyCode::kRight:
            StepBeside(key);
            break;
        case KeyCode::kPageUp:
        case KeyCode::kPageDown:
            TurnPages(key.code == KeyCode::kPageUp ? -1 : 1);
            break;
        case KeyCode::kEnter:
            PressEnter();
            break;
        case KeyCode::kEscape:
            if (!PressButton("cancels")) {
                Shown().UserClose();
            }
            break;
        case KeyCode::kF1:
            Shown().UserHelp();
            break;
        case KeyCode::kCharacter:
            if (key.alt) {
                PressAccessKey(key.character);
            }
            break;
        default:
            break;
    }
}

}  // namespace horavex
