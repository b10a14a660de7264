#include <algorithm>
#include <numeric>

#include "terminal/forms/arrangement.h"
#include "terminal/forms/shared_columns.h"

namespace horavex {

namespace {

/// Which of the columns that a cell spans is to take what it wants beyond them: one that stretches,
/// or else the last.
std::size_t TakerIn(const LayoutNode& grid, std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < std::min(last + 1, grid.columnStretch.size()); ++i) {
        if (grid.columnStretch[i] > 0) {
            return i;
        }
    }
    return last;
}

}  // namespace

/// What the columns of a grid want.
std::vector<Arrangement::Widths> Arrangement::GridColumns(const LayoutNode& grid) const {
    std::vector<Widths> columns;
    for (const bool spanning : {false, true}) {
        for (const LayoutNode& child : grid.children) {
            const auto first = static_cast<std::size_t>(child.column);
            const auto last = first + static_cast<std::size_t>(child.columnSpan) - 1;
            columns.resize(std::max(columns.size(), last + 1));
            if (!IsShown(child) || spanning != (child.columnSpan > 1)) {
                continue;
            }
            Widths lacking = WidthsOf(child);
            const std::size_t taking = TakerIn(grid, first, last);
            for (std::size_t i = first; i <= last; ++i) {
                const int gap = i != taking && columns[i].wanted > 0 ? kColumnGap : 0;
                lacking.least -= i == taking ? 0 : columns[i].least + gap;
                lacking.wanted -= i == taking ? 0 : columns[i].wanted + gap;
            }
            Widths& taker = columns[taking];
            taker.least = std::max(taker.least, lacking.least);
            taker.wanted = std::max(taker.wanted, lacking.wanted);
            taker.widens = taker.widens || lacking.widens;
        }
    }
    for (std::size_t i = 0; i < std::min(columns.size(), grid.columnStretch.size()); ++i) {
        columns[i].widens =
            columns[i].widens || (grid.columnStretch[i] > 0 && columns[i].wanted > 0);
    }
    return columns;
}

/// The columns of all lines that a cell lies in, with the gaps between them.
int Arrangement::PlaceGrid(const LayoutNode& grid, int row, int column, int width) {
    std::vector<int> least;
    std::vector<int> wanted;
    std::vector<bool> widens;
    std::size_t used = 0;
    for (const Widths& one : GridColumns(grid)) {
        least.push_back(std::max(one.least, 0));
        wanted.push_back(std::max(one.wanted, one.least));
        widens.push_back(one.widens);
        used += wanted.back() > 0 ? 1U : 0U;
    }
    const int room = width - GapsBetween(used);
    if (std::accumulate(least.begin(), least.end(), 0) > room) {
        return PlaceGridBelow(grid, row, column, width);
    }
    return PlaceCells(grid, SharedColumns(least, wanted, widens, room), row, column);
}

int Arrangement::PlaceCells(const LayoutNode& grid, const std::vector<int>& widths, int row,
                            int column) {
    std::vector<int> lefts;  // of the columns, and of what lies behind the last
    for (const int width : widths) {
        lefts.push_back(column);
        column += width + (width > 0 ? kColumnGap : 0);
    }
    lefts.push_back(column);
    std::map<int, int> bottoms;  // by line of the grid, of what ends there
    int top = row;
    for (const auto& [line, cells] : LinesOf(grid)) {
        for (auto bottom = bottoms.begin(); bottom != bottoms.lower_bound(line); ++bottom) {
            top = std::max(top, bottom->second);
        }
        std::map<int, int> used;  // by column: cells in one place lie below each other
        for (const LayoutNode* cell : cells) {
            const auto first = static_cast<std::size_t>(cell->column);
            const int right = lefts.at(first + static_cast<std::size_t>(cell->columnSpan));
            int& at = used.try_emplace(cell->column, top).first->second;
            at += Place(*cell, at, lefts[first], std::max(1, right - lefts[first] - kColumnGap));
            int& bottom = bottoms[line + cell->rowSpan - 1];
            bottom = std::max(bottom, at);
        }
    }
    for (const auto& [line, bottom] : bottoms) {
        top = std::max(top, bottom);
    }
    return top - row;
}

/// Where the columns have no room beside each other.
int Arrangement::PlaceGridBelow(const LayoutNode& grid, int row, int column, int width) {
    int height = 0;
    for (const auto& [line, cells] : LinesOf(grid)) {
        height += PlaceFlowing(cells, row + height, column, width);
    }
    return height;
}

/// The cells on view by their lines, from left to right.
std::map<int, Arrangement::Nodes> Arrangement::LinesOf(const LayoutNode& grid) const {
    std::map<int, Nodes> lines;
    for (const LayoutNode* cell : ShownChildren(grid)) {
        lines[cell->row].push_back(cell);
    }
    for (auto& [line, cells] : lines) {
        std::stable_sort(cells.begin(), cells.end(), [](const auto* one, const auto* other) {
            return one->column < other->column;
        });
    }
    return lines;
}

}  // namespace horavex
