#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// What stands in one place of a terminal: a character with the marks that combine with it.
struct Glyph {
    std::string text;  // UTF-8
    int width;         // columns, 1 or 2
};

/// A text in its logical order. Control characters and the invisible ones of directions are left
/// out, and what is no UTF-8 becomes question marks. Widths are those of the process's locale.
std::vector<Glyph> GlyphsOf(std::string_view text);

/// Columns that a text of one line takes.
int WidthOf(std::string_view text);

/// A text of at most the given columns; one that is cut ends with an ellipsis.
std::string Clipped(std::string_view text, int width);

/// What is left of a text of one line without its first columns; it begins with an ellipsis then.
std::string WithoutColumns(std::string_view text, int columns);

/// The lines of a text, each within the given columns, 1 or more. They end between words where
/// that can be done; a line feed ends one in any case.
std::vector<std::string> Wrapped(std::string_view text, int width);

/// Columns of the longest of a text's own lines, 0 for an empty one.
int WidestLine(std::string_view text);

/// Columns of the longest word.
int WidestWord(std::string_view text);

/// The characters of a text, small where the script has such letters: for comparing.
std::u32string Folded(const std::string& text);

/// Whether a text is in a script that runs from right to left.
bool RunsFromRight(std::string_view text);

}  // namespace horavex
