#include "terminal/forms/list_widgets.h"

#include <algorithm>

#include "terminal/forms/scroll_mark.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kWidestList = 50;
constexpr int kLeastRows = 4;
constexpr int kLeastTableRows = 6;
constexpr int kGap = 2;  // columns between those of a table

}  // namespace

int ListWidget::WantedWidth() const {
    constexpr int kLookedAt = 300;  // a list may be of thousands
    int widest = 20;
    for (int item = 0; item < std::min(list_.ListCount(), kLookedAt); ++item) {
        widest = std::max(widest, WidthOf(list_.ListItem(item)));
    }
    return std::min(widest, kWidestList) + 3;
}

int ListWidget::HeightIn(int) const {
    return std::clamp(list_.ListCount(), 2, kLeastRows);
}

bool ListWidget::Grows() const {
    return list_.ListCount() > kLeastRows;
}

void ListWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    rows_.Draw(cells, area, {list_.Items(), list_.ListIndex()}, hasFocus, FromRight(),
               ToneOf(false));
    if (hasFocus && list_.ListIndex() < 0) {
        cells.SetCursor(CellPlace{area.row, area.column});
    }
}

bool ListWidget::Press(const KeyPress& key) {
    const int row = rows_.After(key, {list_.Items(), list_.ListIndex()}, Around().Seconds());
    if (row >= 0) {
        list_.UserSelect(row);
    }
    return row >= 0 || (key.IsText() && list_.ListCount() > 0);
}

/// Why the chosen row could not be.
std::string ListWidget::Hint() const {
    const std::string refusal =
        list_.ListIndex() < 0 ? std::string() : list_.ItemRefusal(list_.ListIndex());
    return refusal.empty() ? Widget::Hint() : refusal;
}

int TabsWidget::LeastWidth() const {
    int widest = 0;
    for (const std::string& caption : Captions()) {
        widest = std::max(widest, WidthOf(caption) + 2);
    }
    return widest;
}

int TabsWidget::WantedWidth() const {
    int all = 0;
    for (const std::string& caption : Captions()) {
        all += WidthOf(caption) + 3;
    }
    return all;
}

int TabsWidget::HeightIn(int width) const {
    int lines = 1;
    int used = 0;
    for (const std::string& caption : Captions()) {
        const int wanted = WidthOf(caption) + 3;
        if (used > 0 && used + wanted > width) {
            ++lines;
            used = 0;
        }
        used += wanted;
    }
    return lines;
}

void TabsWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    int row = area.row;
    int used = 0;
    int tab = 0;
    for (const std::string& caption : Captions()) {
        const int wanted = WidthOf(caption) + 3;
        if (used > 0 && used + wanted > area.width) {
            ++row;
            used = 0;
        }
        const bool isChosen = tab++ == Chosen();
        const Look look(isChosen ? (hasFocus ? Tone::kFocus : Tone::kSelected) : Tone::kPlain);
        const int left = FromRight() ? area.width - used - wanted + 1 : used;
        cells.Put(row, area.column + left, " " + caption + " ", look);
        used += wanted;
    }
}

bool TabsWidget::HasTabBeside(int step) const {
    const int tab = Chosen() + step;
    return tab >= 0 && tab < static_cast<int>(Captions().size());
}

bool TabsWidget::Press(const KeyPress& key) {
    if (key.code != KeyCode::kLeft && key.code != KeyCode::kRight) {
        return false;
    }
    const bool back = (key.code == KeyCode::kLeft) != FromRight();
    const int last = static_cast<int>(Captions().size()) - 1;
    const int tab = std::clamp(Chosen() + (back ? -1 : 1), 0, std::max(last, 0));
    if (tab != Chosen()) {
        Choose(tab);
    }
    return true;
}

std::vector<std::string> PagesWidget::Captions() const {
    std::vector<std::string> captions;
    for (std::size_t page = 0; page < Node().children.size(); ++page) {
        captions.push_back(WithoutKey(title_(page)));
    }
    return captions;
}

std::vector<int> GridWidget::Columns() const {
    std::vector<int> columns;
    for (const std::string& head : grid_.heads) {
        columns.push_back(WidthOf(head));
    }
    for (const Grid::Row& row : grid_.rows) {
        for (std::size_t i = 0; i < std::min(columns.size(), row.cells.size()); ++i) {
            columns[i] = std::max(columns[i], WidthOf(row.cells[i]));
        }
    }
    return columns;
}

/// The columns on view in so much room, with their widths: the first one, and those from the one
/// that was scrolled to. The first yields to the one beside it, which would be on view nowhere,
/// until a user goes back to it.
std::vector<GridWidget::Shown> GridWidget::ColumnsIn(int width) {
    constexpr int kLeastFirst = 8;
    const std::vector<int> wanted = Columns();
    std::vector<Shown> shown;
    int left = 0;
    const auto put = [&](std::size_t column, int columns) {
        shown.push_back({column, left, columns});
        left += columns + kGap;
    };
    if (wanted.empty()) {
        return shown;
    }
    auto column = static_cast<std::size_t>(1 + skipped_);
    const int second = column < wanted.size() ? wanted[column] + kGap : 0;
    const int yielding = std::clamp(width - second, std::min(kLeastFirst, wanted[0]), wanted[0]);
    firstIsCut_ = !firstIsWhole_ && yielding < wanted[0];
    put(0, firstIsWhole_ ? std::min(wanted[0], width) : yielding);
    while (column < wanted.size() && (shown.size() == 1 || left + wanted[column] <= width)) {
        put(column, std::clamp(width - left, 0, wanted[column]));
        ++column;
    }
    hasMoreColumns_ = column < wanted.size();
    return shown;
}

int GridWidget::LeastWidth() const {
    return std::min(WantedWidth(), 30);
}

int GridWidget::WantedWidth() const {
    int all = -kGap;
    for (const int column : Columns()) {
        all += column + kGap;
    }
    return std::max(all, 10);
}

int GridWidget::HeightIn(int) const {
    return 1 + std::clamp(static_cast<int>(grid_.rows.size()), 1, kLeastTableRows);
}

void GridWidget::DrawRow(Cells& cells, const Area& area, const std::vector<std::string>& texts,
                         const std::vector<Shown>& columns, const Look& look) const {
    for (const Shown& column : columns) {
        if (column.number >= texts.size()) {
            return;
        }
        const std::string& text = texts[column.number];
        const int width = std::min(column.width, area.width - column.left);
        const int left = FromRight() ? area.width - column.left - width : column.left;
        if (FromRight() != grid_.figures.contains(column.number)) {
            cells.PutRight(area.row, area.column + left, text, look, width);
        } else {
            cells.Put(area.row, area.column + left, text, look, width);
        }
    }
}

/// The present row into the middle, whenever there are other rows.
void GridWidget::GoToCurrentRow() {
    if (shown_ == grid_.rows) {
        return;
    }
    shown_ = grid_.rows;
    const auto current = std::find_if(shown_.begin(), shown_.end(),
                                      [](const Grid::Row& row) { return row.current; });
    first_ = current == shown_.end() ? 0 : static_cast<int>(current - shown_.begin()) - height_ / 2;
}

void GridWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    const int count = static_cast<int>(grid_.rows.size());
    height_ = std::max(1, area.height - 1);
    const bool hasMarks = count > height_ || WantedWidth() > area.width;
    const int width = area.width - (hasMarks ? 1 : 0);
    const std::vector<Shown> columns = ColumnsIn(width);
    GoToCurrentRow();
    first_ = std::clamp(first_, 0, std::max(0, count - height_));
    cells.Fill({area.row, area.column, 1, area.width}, hasFocus ? Tone::kFocus : Tone::kSelected);
    DrawRow(cells, {area.row, area.column, 1, width}, grid_.heads, columns,
            hasFocus ? Tone::kFocus : Tone::kSelected);
    for (int row = 0; row < std::min(height_, count - first_); ++row) {
        const Grid::Row& shown = grid_.rows[static_cast<std::size_t>(first_ + row)];
        const Look look(shown.current ? Tone::kAccent
                                      : (shown.setOff ? Tone::kStrong : Tone::kPlain));
        DrawRow(cells, {area.row + 1 + row, area.column, 1, width}, shown.cells, columns, look);
    }
    if (hasMoreColumns_) {
        cells.Put(area.row, area.column + area.width - 1, FromRight() ? "◂" : "▸", Tone::kAccent);
    }
    PutScrollMark(cells, {area.row + 1, area.column, height_, area.width}, {first_, height_, count},
                  hasFocus);
}

/// False where there are no more on that side.
bool GridWidget::SkipColumns(int step) {
    if (step < 0 ? skipped_ == 0 && firstIsCut_ : firstIsWhole_) {
        firstIsWhole_ = !firstIsWhole_;
        return true;
    }
    const bool can = step > 0 ? hasMoreColumns_ : skipped_ > 0;
    skipped_ += can ? step : 0;
    return can;
}

/// False where there are no more on that side.
bool GridWidget::Scroll(int rows) {
    const int before = first_;
    first_ =
        std::clamp(first_ + rows, 0, std::max(0, static_cast<int>(grid_.rows.size()) - height_));
    return first_ != before;
}

bool GridWidget::TurnPage(int step) {
    if (!grid_.onPage) {
        return Scroll(step * height_);
    }
    grid_.UserPage(step);
    return true;
}

bool GridWidget::Press(const KeyPress& key) {
    switch (key.code) {
        case KeyCode::kUp:
            return Scroll(-1);
        case KeyCode::kDown:
            return Scroll(1);
        case KeyCode::kLeft:
        case KeyCode::kRight:
            return SkipColumns((key.code == KeyCode::kRight) != FromRight() ? 1 : -1);
        case KeyCode::kPageUp:
            return TurnPage(-1);
        case KeyCode::kPageDown:
            return TurnPage(1);
        default:
            return false;
    }
}

}  // namespace horavex
