#include "terminal/forms/range_widgets.h"

#include <algorithm>
#include <string>

namespace horavex {

namespace {

constexpr int kStepsOfThumb = 12;  // columns of a bar at the least, with its ends

/// Where a value stands between its limits, either of which may be the greater: 0 to 1.
double PartOf(const Range& range) {
    const int span = range.Max() - range.Min();
    return span == 0 ? 0.0 : static_cast<double>(range.Value() - range.Min()) / span;
}

}  // namespace

int BarWidget::LeastWidth() const {
    return range_.Kind() == ControlKind::kScrollBar ? kStepsOfThumb : 7;
}

int BarWidget::WantedWidth() const {
    return range_.Kind() == ControlKind::kScrollBar ? 20 : 9;
}

void BarWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    const Look line(ToneOf(false, hasFocus ? Tone::kAccent : Tone::kFaint));
    const Look thumb(ToneOf(hasFocus, Tone::kStrong));
    const int room = std::max(1, area.width - 3);
    const double part = FromRight() ? 1.0 - PartOf(range_) : PartOf(range_);
    cells.Put(area.row, area.column, "◂", line);
    for (int column = 1; column < area.width - 1; ++column) {
        cells.Put(area.row, area.column + column, "─", line);
    }
    cells.Put(area.row, area.column + area.width - 1, "▸", line);
    cells.Put(area.row, area.column + 1 + static_cast<int>(part * room + 0.5), "█", thumb);
}

bool BarWidget::Press(const KeyPress& key) {
    const int onward = range_.Max() >= range_.Min() ? 1 : -1;
    const int right = FromRight() ? -onward : onward;
    switch (key.code) {
        case KeyCode::kLeft:
            range_.UserSlide(range_.Value() - right * range_.SmallStep());
            return true;
        case KeyCode::kRight:
            range_.UserSlide(range_.Value() + right * range_.SmallStep());
            return true;
        case KeyCode::kPageUp:
            range_.UserSlide(range_.Value() - onward * range_.LargeStep());
            return true;
        case KeyCode::kPageDown:
            range_.UserSlide(range_.Value() + onward * range_.LargeStep());
            return true;
        case KeyCode::kHome:
            range_.UserSlide(range_.Min());
            return true;
        case KeyCode::kEnd:
            range_.UserSlide(range_.Max());
            return true;
        default:
            return false;
    }
}

void ProgressWidget::Draw(Cells& cells, const Area& area, bool) {
    const int full = static_cast<int>(PartOf(bar_) * area.width + 0.5);
    for (int column = 0; column < area.width; ++column) {
        const int place = FromRight() ? area.width - 1 - column : column;
        cells.Put(area.row, area.column + place, column < full ? "█" : "░", Tone::kAccent);
    }
}

}  // namespace horavex
