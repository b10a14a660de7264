#include "terminal/forms/text_widgets.h"

#include <algorithm>

#include "base/utf8.h"
#include "lang/own_digits.h"
#include "terminal/forms/scroll_mark.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kUsualWidth = 16;
constexpr int kPixelsPerColumn = 9;
constexpr int kComboSides = 5;  // "[ " and " ▾]"
constexpr int kWidestCombo = 44;

std::string Joined(const std::vector<Glyph>& glyphs, std::size_t first, std::size_t end) {
    std::string text;
    for (std::size_t i = first; i < std::min(end, glyphs.size()); ++i) {
        text += glyphs[i].text;
    }
    return text;
}

std::string CharacterOf(const KeyPress& key) {
    std::string text;
    AppendUtf8(text, key.character);
    return text;
}

}  // namespace

std::optional<std::string> EditedLine::After(const KeyPress& key, const std::string& text,
                                             bool& kept) {
    const std::vector<Glyph> glyphs = GlyphsOf(text);
    std::size_t at = std::min(cursor_, glyphs.size());
    kept = true;
    if (key.IsText()) {
        const std::string typed = CharacterOf(key);
        cursor_ = at + (WidthOf(typed) > 0 ? 1 : 0);  // a mark joins what is before it
        return Joined(glyphs, 0, at) + typed + Joined(glyphs, at, glyphs.size());
    }
    switch (key.code) {
        case KeyCode::kBackspace:
            cursor_ = at == 0 ? 0 : at - 1;
            return Joined(glyphs, 0, cursor_) + Joined(glyphs, at, glyphs.size());
        case KeyCode::kDelete:
            return Joined(glyphs, 0, at) + Joined(glyphs, at + 1, glyphs.size());
        case KeyCode::kLeft:
            cursor_ = at == 0 ? 0 : at - 1;
            return std::nullopt;
        case KeyCode::kRight:
            cursor_ = std::min(at + 1, glyphs.size());
            return std::nullopt;
        case KeyCode::kHome:
            cursor_ = 0;
            return std::nullopt;
        case KeyCode::kEnd:
            cursor_ = kEnd;
            return std::nullopt;
        default:
            kept = false;
            return std::nullopt;
    }
}

/// The part of the line around the cursor, where it is longer than the room.
void EditedLine::Draw(Cells& cells, const Area& area, const std::string& text, const Look& look,
                      bool hasFocus) {
    const std::vector<Glyph> glyphs = GlyphsOf(text);
    const std::size_t at = std::min(cursor_, glyphs.size());
    std::size_t first = 0;
    while (WidthOf(Joined(glyphs, first, at)) >= area.width && first < at) {
        ++first;
    }
    cells.Fill({area.row, area.column, 1, area.width}, look);
    cells.PutAsIs(area.row, area.column, Joined(glyphs, first, glyphs.size()), look, area.width);
    if (hasFocus) {
        cells.SetCursor(CellPlace{area.row, area.column + WidthOf(Joined(glyphs, first, at))});
    }
}

TextWidget::TextWidget(TextBox& box, const LayoutNode& node, WidgetSurroundings& around)
    : Widget(&box, node, around), box_(box) {}

/// What the layout allows, 0 for any.
int TextWidget::MostWidth() const {
    const std::string pixels = Node().Property("maximumSize.width");
    constexpr int kNoMost = 2000;
    const int most = pixels.empty() ? kNoMost : std::stoi(pixels.substr(0, 5));
    return most >= kNoMost ? 0 : most / kPixelsPerColumn;
}

int TextWidget::LeastWidth() const {
    return std::min(8, WantedWidth());
}

int TextWidget::WantedWidth() const {
    return MostWidth() > 0 ? std::max(6, MostWidth()) : kUsualWidth;
}

bool TextWidget::Widens() const {
    return MostWidth() == 0;
}

void TextWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    line_.Draw(cells, area, InShownDigits(box_.Text()), ToneOf(false, Tone::kField), hasFocus);
}

bool TextWidget::Press(const KeyPress& key) {
    const std::string steered = Node().Property("steers");
    if ((key.code == KeyCode::kUp || key.code == KeyCode::kDown) && !steered.empty()) {
        Around().Steer(steered, key);
        box_.UserFocus();
        return true;
    }
    bool kept = false;
    const auto text = line_.After(key, box_.Text(), kept);
    if (text) {
        box_.UserEdit(InPlainDigits(*text));
    }
    return kept;
}

bool LinesWidget::Wraps() const {
    return Node().Property("lineWrapMode") != "QTextEdit::NoWrap";
}

/// A column is left for the mark of a text that scrolls. Blank lines at the end are none.
std::vector<std::string> LinesWidget::LinesIn(int width) const {
    constexpr int kAnyWidth = 10000;
    auto lines = Wrapped(InShownDigits(box_.Text()), Wraps() ? std::max(1, width - 1) : kAnyWidth);
    while (lines.size() > 1 && lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

int LinesWidget::LeastWidth() const {
    return std::min(20, WantedWidth());
}

int LinesWidget::WantedWidth() const {
    return std::clamp(WidestLine(box_.Text()) + 1, 12, 60);
}

int LinesWidget::HeightIn(int width) const {
    constexpr int kLeast = 3;
    return Wraps() ? std::min(MostHeightIn(width), kLeast) : MostHeightIn(width);
}

int LinesWidget::MostHeightIn(int width) const {
    return static_cast<int>(LinesIn(width).size());
}

bool LinesWidget::Grows() const {
    return Wraps() && !box_.Text().empty();
}

void LinesWidget::DrawLine(Cells& cells, const Area& place, const std::string& line) const {
    cells.PutAsIs(place.row, place.column, WithoutColumns(line, left_), ToneOf(false), place.width,
                  FromRight());
}

void LinesWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    const std::vector<std::string> lines = LinesIn(area.width);
    count_ = static_cast<int>(lines.size());
    height_ = std::max(1, area.height);
    width_ = area.width;
    first_ = std::clamp(first_, 0, std::max(0, count_ - height_));
    cells.Fill(area, ToneOf(false));
    for (int row = 0; row < std::min(height_, count_ - first_); ++row) {
        DrawLine(cells, {area.row + row, area.column, 1, area.width},
                 lines[static_cast<std::size_t>(first_ + row)]);
    }
    PutScrollMark(cells, area, {first_, height_, count_}, hasFocus);
    if (hasFocus) {
        cells.SetCursor(
            CellPlace{area.row, FromRight() ? area.column + area.width - 1 : area.column});
    }
}

/// False where there is nothing on that side.
bool LinesWidget::Scroll(int lines) {
    const int before = first_;
    first_ = std::clamp(first_ + lines, 0, std::max(0, count_ - height_));
    return first_ != before;
}

bool LinesWidget::ScrollSideways(int columns) {
    const int before = left_;
    const int most = Wraps() ? 0 : std::max(0, WidestLine(box_.Text()) - width_);
    left_ = std::clamp(left_ + columns, 0, most);
    return left_ != before;
}

bool LinesWidget::Press(const KeyPress& key) {
    constexpr int kSideways = 8;
    const int onward = FromRight() ? -kSideways : kSideways;
    switch (key.code) {
        case KeyCode::kUp:
            return Scroll(-1);
        case KeyCode::kDown:
            return Scroll(1);
        case KeyCode::kPageUp:
            return Scroll(-height_);
        case KeyCode::kPageDown:
            return Scroll(height_);
        case KeyCode::kLeft:
            return ScrollSideways(-onward);
        case KeyCode::kRight:
            return ScrollSideways(onward);
        default:
            return false;
    }
}

int ComboWidget::LeastWidth() const {
    return std::min(14, WantedWidth());
}

int ComboWidget::WantedWidth() const {
    int widest = std::max(4, WidthOf(box_.Text()));
    for (const std::string& item : box_.Items()) {
        widest = std::max(widest, WidthOf(item));
    }
    return std::min(widest, kWidestCombo) + kComboSides;
}

void ComboWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    const Look look(ToneOf(hasFocus && !box_.Typed(), Tone::kField));
    const int width = std::min(area.width, WantedWidth());
    const int left = area.column + (FromRight() ? area.width - width : 0);
    cells.Fill({area.row, left, 1, width}, look);
    cells.Put(area.row, left, FromRight() ? "▾" : " ", look);
    cells.Put(area.row, left + width - 1, FromRight() ? " " : "▾", look);
    const Area inside{area.row, left + 2, 1, width - 4};
    if (box_.Typed()) {
        line_.Draw(cells, inside, InShownDigits(box_.Text()), look, hasFocus);
    } else if (FromRight()) {
        cells.PutRight(inside.row, inside.column, Clipped(box_.Text(), inside.width), look,
                       inside.width);
    } else {
        cells.Put(inside.row, inside.column, box_.Text(), look, inside.width);
    }
}

// In a text the keys across are the cursor's; else those down lead on to the next control, so that
// nobody changes a list in passing.
bool ComboWidget::Press(const KeyPress& key) {
    const KeyCode back = box_.Typed() ? KeyCode::kUp : KeyCode::kLeft;
    const KeyCode on = box_.Typed() ? KeyCode::kDown : KeyCode::kRight;
    if (key.code == back || key.code == on) {
        const int step = key.code == back ? -1 : 1;
        Step(box_.ListIndex() + step, step);
        return true;
    }
    if (!box_.Typed()) {
        return PressClosed(key);
    }
    bool kept = false;
    const auto text = line_.After(key, box_.Text(), kept);
    if (text) {
        box_.UserEdit(InPlainDigits(*text));
    }
    return kept;
}

/// Letters choose the item that begins so without opening the list.
bool ComboWidget::PressClosed(const KeyPress& key) {
    if (key.Is(U' ') || key.code == KeyCode::kEnter) {
        Open();
    } else if (key.code == KeyCode::kHome) {
        Step(0, 1);
    } else if (key.code == KeyCode::kEnd) {
        Step(box_.ListCount() - 1, -1);
    } else if (key.IsText()) {
        const int found =
            search_.After(key.character, box_.Items(), box_.ListIndex(), Around().Seconds());
        if (CanChoose(found)) {
            box_.UserSelect(found);
        }
    } else {
        return false;
    }
    return true;
}

void ComboWidget::Open() {
    std::vector<std::string> reasons;
    for (int item = 0; item < box_.ListCount(); ++item) {
        reasons.push_back(box_.ItemRefusal(item));
    }
    const int chosen = Around().Choose(box_.Items(), box_.ListIndex(), reasons);
    if (chosen >= 0 && chosen < box_.ListCount()) {
        box_.UserSelect(chosen);
    }
}

bool ComboWidget::CanChoose(int item) const {
    return item >= 0 && item < box_.ListCount() && box_.ItemRefusal(item).empty();
}

/// To the first item that can be chosen, from the given one on.
void ComboWidget::Step(int from, int step) {
    int item = from;
    while (item >= 0 && item < box_.ListCount() && !CanChoose(item)) {
        item += step;
    }
    if (CanChoose(item)) {
        line_.MoveToEnd();
        box_.UserSelect(item);
    }
}

}  // namespace horavex
