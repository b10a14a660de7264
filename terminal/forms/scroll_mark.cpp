#include "terminal/forms/scroll_mark.h"

namespace horavex {

void PutScrollMark(Cells& cells, const Area& area, const RowsOnView& rows, bool hasFocus) {
    if (rows.IsAll()) {
        return;
    }
    const int row = area.row + rows.first * (rows.height - 1) / (rows.count - rows.height);
    cells.Put(row, area.column + area.width - 1, "█", hasFocus ? Tone::kAccent : Tone::kFaint);
}

}  // namespace horavex
