#pragma once

#include "terminal/screen/cells.h"

namespace horavex {

/// Which of some rows are on view.
struct RowsOnView {
    int first;
    int height;  // 1 or more
    int count;   // of all

    bool IsAll() const { return count <= height; }
};

/// Marks in the last column of an area where its rows stand among all; nothing where all have room.
void PutScrollMark(Cells& cells, const Area& area, const RowsOnView& rows, bool hasFocus);

}  // namespace horavex
