#pragma once

#include <string>
#include <vector>

#include "terminal/forms/beginning_search.h"
#include "terminal/screen/cells.h"
#include "terminal/screen/key_press.h"

namespace horavex {

/// How rows of a list stand in a part of the screen, whose rows they are, which of them is chosen,
/// and how keys move from one to another.
class ListRows {
public:
    struct State {
        const std::vector<std::string>& texts;
        int chosen;  // -1 for none
    };

    /// The row that a key leads to; -1 for a key that leads nowhere. Letters look for a row, as
    /// BeginningSearch does. seconds: of a clock that goes forward.
    int After(const KeyPress& key, const State& state, double seconds);

    void Draw(Cells& cells, const Area& area, const State& state, bool hasFocus, bool fromRight,
              Tone usual);

private:
    void KeepInView(const State& state, int height);

    int first_ = 0;   // row at the top
    int height_ = 1;  // when it was last drawn
    BeginningSearch search_;
};

}  // namespace horavex
