#include "terminal/screen/glyphs.h"

#include <wchar.h>
#include <wctype.h>

#include <algorithm>

#include "base/script.h"
#include "base/utf8.h"

namespace horavex {

namespace {

constexpr std::size_t kMostMarks = 4;  // that a cell of the terminal library holds with a character

std::u32string CharactersOf(std::string_view text) {
    if (auto decoded = DecodeUtf8(text)) {
        return *decoded;
    }
    return std::u32string(text.size(), U'?');
}

void AddMark(std::vector<Glyph>& glyphs, std::size_t& marks, char32_t mark) {
    if (!glyphs.empty() && marks < kMostMarks) {
        AppendUtf8(glyphs.back().text, mark);
        ++marks;
    }
}

/// Neither isolates nor the older marks of directions have a form.
bool IsDirection(char32_t c) {
    return c == U'\u200e' || c == U'\u200f' || c == U'\u061c' ||
           (c >= U'\u202a' && c <= U'\u202e') || (c >= U'\u2066' && c <= U'\u2069');
}

std::vector<std::string> Parts(std::string_view text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else if (c != '\r') {
            parts.back() += c;
        }
    }
    return parts;
}

/// Breaks a word that is longer than a line; the last part is what is left of it.
std::vector<std::string> Broken(const std::string& word, int width) {
    std::vector<std::string> parts(1);
    int used = 0;
    for (const Glyph& glyph : GlyphsOf(word)) {
        if (used + glyph.width > width && used > 0) {
            parts.emplace_back();
            used = 0;
        }
        parts.back() += glyph.text;
        used += glyph.width;
    }
    return parts;
}

void AddWord(std::vector<std::string>& lines, const std::string& word, int width) {
    std::string& line = lines.back();
    const bool begins = line.empty();
    if (WidthOf(line) + (begins ? 0 : 1) + WidthOf(word) <= width) {
        line += (begins ? "" : " ") + word;
        return;
    }
    for (std::string& part : Broken(word, width)) {
        if (lines.back().empty()) {
            lines.back() = std::move(part);
        } else {
            lines.push_back(std::move(part));
        }
    }
}

}  // namespace

std::vector<Glyph> GlyphsOf(std::string_view text) {
    std::vector<Glyph> glyphs;
    std::size_t marks = 0;
    for (const char32_t c : CharactersOf(text)) {
        const int width = IsDirection(c) ? -1 : ::wcwidth(static_cast<wchar_t>(c));
        if (width == 0) {
            AddMark(glyphs, marks, c);
        } else if (width > 0) {
            glyphs.push_back({"", width});
            AppendUtf8(glyphs.back().text, c);
            marks = 0;
        }
    }
    return glyphs;
}

int WidthOf(std::string_view text) {
    int width = 0;
    for (const Glyph& glyph : GlyphsOf(text)) {
        width += glyph.width;
    }
    return width;
}

std::string Clipped(std::string_view text, int width) {
    if (WidthOf(text) <= width) {
        return std::string(text);
    }
    std::string clipped;
    int left = width - 1;  // an ellipsis takes one
    for (const Glyph& glyph : GlyphsOf(text)) {
        left -= glyph.width;
        if (left < 0) {
            break;
        }
        clipped += glyph.text;
    }
    return width > 0 ? clipped + "…" : std::string();
}

std::string WithoutColumns(std::string_view text, int columns) {
    if (columns <= 0) {
        return std::string(text);
    }
    std::string rest = "…";
    int passed = -1;  // the ellipsis takes one
    for (const Glyph& glyph : GlyphsOf(text)) {
        if (passed >= columns) {
            rest += glyph.text;
        }
        passed += glyph.width;
    }
    return passed >= columns ? rest : std::string();
}

std::vector<std::string> Wrapped(std::string_view text, int width) {
    std::vector<std::string> lines;
    for (const std::string& paragraph : Parts(text, '\n')) {
        if (WidthOf(paragraph) <= width) {
            lines.push_back(paragraph);  // with its own blanks
            continue;
        }
        lines.emplace_back();
        for (const std::string& word : Parts(paragraph, ' ')) {
            AddWord(lines, word, std::max(width, 1));
        }
    }
    return lines;
}

int WidestLine(std::string_view text) {
    int widest = 0;
    for (const std::string& line : Parts(text, '\n')) {
        widest = std::max(widest, WidthOf(line));
    }
    return widest;
}

int WidestWord(std::string_view text) {
    int widest = 0;
    for (const std::string& line : Parts(text, '\n')) {
        for (const std::string& word : Parts(line, ' ')) {
            widest = std::max(widest, WidthOf(word));
        }
    }
    return widest;
}

std::u32string Folded(const std::string& text) {
    std::u32string folded = DecodeUtf8(text).value_or(std::u32string());
    for (char32_t& c : folded) {
        c = static_cast<char32_t>(::towlower(static_cast<wint_t>(c)));
    }
    return folded;
}

bool RunsFromRight(std::string_view text) {
    static const Script arabic = ScriptOf("\u0627");
    return ScriptOf(text) == arabic;
}

}  // namespace horavex
