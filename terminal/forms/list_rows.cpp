#include "terminal/forms/list_rows.h"

#include <algorithm>

#include "terminal/forms/scroll_mark.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

int ListRows::After(const KeyPress& key, const State& state, double seconds) {
    const int last = static_cast<int>(state.texts.size()) - 1;
    if (last < 0) {
        return -1;
    }
    const auto within = [last](int row) { return std::clamp(row, 0, last); };
    switch (key.code) {
        case KeyCode::kUp:
            return within(state.chosen - 1);
        case KeyCode::kDown:
            return within(state.chosen + 1);
        case KeyCode::kPageUp:
            return within(state.chosen - std::max(1, height_ - 1));
        case KeyCode::kPageDown:
            return within(state.chosen + std::max(1, height_ - 1));
        case KeyCode::kHome:
            return 0;
        case KeyCode::kEnd:
            return last;
        default:
            return key.IsText() ? search_.After(key.character, state.texts, state.chosen, seconds)
                                : -1;
    }
}

void ListRows::KeepInView(const State& state, int height) {
    const int count = static_cast<int>(state.texts.size());
    height_ = std::max(1, height);
    if (state.chosen >= 0) {
        first_ = std::clamp(first_, state.chosen - height_ + 1, state.chosen);
    }
    first_ = std::clamp(first_, 0, std::max(0, count - height_));
}

void ListRows::Draw(Cells& cells, const Area& area, const State& state, bool hasFocus,
                    bool fromRight, Tone usual) {
    KeepInView(state, area.height);
    const int count = static_cast<int>(state.texts.size());
    const bool scrolls = count > height_;
    const int width = area.width - (scrolls ? 1 : 0);
    cells.Fill(area, usual);
    for (int row = 0; row < std::min(height_, count - first_); ++row) {
        const bool isChosen = first_ + row == state.chosen;
        const Look look(isChosen ? (hasFocus ? Tone::kFocus : Tone::kSelected) : usual);
        const std::string text =
            Clipped(state.texts[static_cast<std::size_t>(first_ + row)], width - 2);
        cells.Fill({area.row + row, area.column, 1, width}, look);
        if (fromRight) {
            cells.PutRight(area.row + row, area.column + 1, text, look, width - 2);
        } else {
            cells.Put(area.row + row, area.column + 1, text, look, width - 2);
        }
    }
    PutScrollMark(cells, area, {first_, height_, count}, hasFocus);
}

}  // namespace horavex
