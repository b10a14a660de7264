#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/drawing.h"

namespace horavex {

/// What a text is, from which a terminal makes its look.
enum class Tone {
    kPlain,
    kStrong,    // a heading, what counts most
    kAccent,    // what comes next
    kFaint,     // frames, hints, what cannot be used
    kField,     // where a value stands that can be changed
    kFocus,     // where the keys go
    kSelected,  // the chosen row where the keys go elsewhere
};

struct Look {
    // Implicit, so that a tone alone is a look.
    Look(Tone oneTone = Tone::kPlain, bool isKey = false) : tone(oneTone), key(isKey) {}

    Tone tone;
    bool key;                                  // the letter that reaches something
    std::optional<Colour> ink = std::nullopt;  // of a drawing; a terminal without colours ignores
    std::optional<Colour> ground = std::nullopt;  // both

    bool operator==(const Look&) const = default;
};

/// A part of a screen, in rows and columns from its upper left corner.
struct Area {
    int row = 0;
    int column = 0;
    int height = 0;
    int width = 0;

    bool operator==(const Area&) const = default;
};

struct CellPlace {
    int row;
    int column;

    bool operator==(const CellPlace&) const = default;
};

/// One place of a screen.
struct Cell {
    std::string text = " ";  // empty where the character before it takes two columns
    Look look = {};

    bool operator==(const Cell&) const = default;
};

/// A screen in memory. What lies outside it is dropped.
class Cells {
public:
    Cells(int rows, int columns);

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    const Cell& At(int row, int column) const;

    /// Writes a text of one line in at most the given columns, cut with an ellipsis, in the digits
    /// that users chose.
    void Put(int row, int column, std::string_view text, const Look& look = {}, int width = 10000);

    /// Writes a name, a path or what is in those digits already, with its digits as they are; from
    /// the right edge of so many columns if that is wanted.
    void PutAsIs(int row, int column, std::string_view text, const Look& look, int width,
                 bool fromRight = false);

    /// As Put, from the right edge of so many columns.
    void PutRight(int row, int column, std::string_view text, const Look& look, int width);

    /// In the middle of so many columns.
    void PutCentred(int row, int column, std::string_view text, const Look& look, int width);

    void Fill(const Area& area, const Look& look = {});

    /// A frame with a caption in its upper edge, from the right where it runs so.
    void Frame(const Area& area, std::string_view caption, const Look& edge, const Look& title);

    /// Writes a part of another screen here.
    void Copy(const Cells& from, const Area& part, CellPlace to);

    /// Where the terminal's own cursor blinks; nothing for none.
    void SetCursor(std::optional<CellPlace> place) { cursor_ = place; }
    const std::optional<CellPlace>& Cursor() const { return cursor_; }

    /// The rows as texts, without the blanks at their ends.
    std::vector<std::string> Texts() const;

private:
    bool Holds(int row, int column) const;
    void Set(int row, int column, Cell cell);

    int rows_;
    int columns_;
    std::vector<Cell> cells_;
    std::optional<CellPlace> cursor_;
};

}  // namespace horavex
