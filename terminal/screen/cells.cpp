#include "terminal/screen/cells.h"

#include <algorithm>

#include "lang/own_digits.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

Cells::Cells(int rows, int columns)
    : rows_(std::max(rows, 0)),
      columns_(std::max(columns, 0)),
      cells_(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_)) {}

bool Cells::Holds(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
}

const Cell& Cells::At(int row, int column) const {
    return cells_.at(static_cast<std::size_t>(row * columns_ + column));
}

void Cells::Set(int row, int column, Cell cell) {
    if (Holds(row, column)) {
        cells_[static_cast<std::size_t>(row * columns_ + column)] = std::move(cell);
    }
}

void Cells::Put(int row, int column, std::string_view text, const Look& look, int width) {
    PutAsIs(row, column, InShownDigits(std::string(text)), look, width);
}

// A character of two columns is not written over the right edge, where it has one.
void Cells::PutAsIs(int row, int column, std::string_view text, const Look& look, int width,
                    bool fromRight) {
    column += fromRight ? std::max(0, width - WidthOf(text)) : 0;
    for (const Glyph& glyph : GlyphsOf(Clipped(text, std::min(width, columns_ - column)))) {
        Set(row, column, {glyph.text, look});
        if (glyph.width == 2) {
            Set(row, column + 1, {"", look});
        }
        column += glyph.width;
    }
}

void Cells::PutRight(int row, int column, std::string_view text, const Look& look, int width) {
    Put(row, column + std::max(0, width - WidthOf(text)), text, look, width);
}

void Cells::PutCentred(int row, int column, std::string_view text, const Look& look, int width) {
    Put(row, column + std::max(0, (width - WidthOf(text)) / 2), text, look, width);
}

void Cells::Fill(const Area& area, const Look& look) {
    for (int row = area.row; row < area.row + area.height; ++row) {
        for (int column = area.column; column < area.column + area.width; ++column) {
            Set(row, column, {" ", look});
        }
    }
}

void Cells::Frame(const Area& area, std::string_view caption, const Look& edge, const Look& title) {
    const int right = area.column + area.width - 1;
    const int bottom = area.row + area.height - 1;
    for (int column = area.column + 1; column < right; ++column) {
        Set(area.row, column, {"─", edge});
        Set(bottom, column, {"─", edge});
    }
    for (int row = area.row + 1; row < bottom; ++row) {
        Set(row, area.column, {"│", edge});
        Set(row, right, {"│", edge});
    }
    Set(area.row, area.column, {"┌", edge});
    Set(area.row, right, {"┐", edge});
    Set(bottom, area.column, {"└", edge});
    Set(bottom, right, {"┘", edge});
    if (caption.empty()) {
        return;
    }
    const std::string words = " " + Clipped(caption, area.width - 6) + " ";
    if (RunsFromRight(caption)) {
        PutRight(area.row, area.column + 2, words, title, area.width - 4);
    } else {
        Put(area.row, area.column + 2, words, title);
    }
}

void Cells::Copy(const Cells& from, const Area& part, CellPlace to) {
    for (int row = 0; row < part.height; ++row) {
        for (int column = 0; column < part.width; ++column) {
            if (from.Holds(part.row + row, part.column + column)) {
                Set(to.row + row, to.column + column,
                    from.At(part.row + row, part.column + column));
            }
        }
    }
}

std::vector<std::string> Cells::Texts() const {
    std::vector<std::string> texts;
    for (int row = 0; row < rows_; ++row) {
        std::string text;
        for (int column = 0; column < columns_; ++column) {
            text += At(row, column).text;
        }
        text.erase(text.find_last_not_of(' ') + 1);
        texts.push_back(text);
    }
    return texts;
}

}  // namespace horavex
