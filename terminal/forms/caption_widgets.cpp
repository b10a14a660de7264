#include "terminal/forms/caption_widgets.h"

#include <algorithm>
#include <map>

#include "lang/own_digits.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kNarrowest = 16;  // columns that a text is wrapped to, at the least

bool IsPress(const KeyPress& key) {
    return key.Is(U' ') || key.code == KeyCode::kEnter;
}

/// Signs as they stand on the other side: " [x]" for "[x] ".
std::string Mirrored(const std::string& signs) {
    static const std::map<std::string, std::string> others = {
        {"[", "]"}, {"]", "["}, {"(", ")"}, {")", "("}};
    std::string mirrored;
    for (const Glyph& glyph : GlyphsOf(signs)) {
        const auto other = others.find(glyph.text);
        mirrored.insert(0, other == others.end() ? glyph.text : other->second);
    }
    return mirrored;
}

}  // namespace

// A label without a text leaves no gap.
bool LabelWidget::IsShown() const {
    return label_.Visible() && !label_.Caption().empty();
}

int LabelWidget::LeastWidth() const {
    return std::min(WantedWidth(), std::max(kNarrowest, WidestWord(WithoutKey(label_.Caption()))));
}

int LabelWidget::WantedWidth() const {
    return WidestLine(WithoutKey(label_.Caption()));
}

int LabelWidget::HeightIn(int width) const {
    return static_cast<int>(Wrapped(WithoutKey(label_.Caption()), width).size());
}

std::string LabelWidget::KeyText() const {
    return Node().Property("buddy").empty() ? std::string() : label_.Caption();
}

void LabelWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    Look look(ToneOf(hasFocus));
    if (area.height == 1 && !KeyText().empty()) {
        PutCaption(cells, area, label_.Caption(), look, FromRight());
        return;
    }
    look.key = TakesKeys();  // underlined, as what can be followed
    int row = area.row;
    for (const std::string& line :
         Wrapped(InShownDigits(WithoutKey(label_.Caption())), area.width)) {
        cells.PutAsIs(row++, area.column, line, look, area.width, FromRight());
    }
}

bool LabelWidget::Press(const KeyPress& key) {
    if (!IsPress(key)) {
        return false;
    }
    label_.UserClick();
    return true;
}

std::string FrameWidget::Caption() const {
    return Bound()->Has(Property::kCaption) ? WithoutKey(Bound()->Caption()) : std::string();
}

/// A short caption is not cut: a frame that has no room for it goes below its neighbour.
int FrameWidget::LeastWidth() const {
    return std::min(WantedWidth(), kNarrowest);
}

int FrameWidget::WantedWidth() const {
    return WidthOf(Caption()) + 2;
}

void FrameWidget::Draw(Cells& cells, const Area& area, bool) {
    cells.Frame(area, Caption(), Tone::kFaint, ToneOf(false, Tone::kStrong));
}

std::string StepWidget::Text() const {
    return std::to_string(number_) + ". " + WithoutKey(page_.Caption());
}

int StepWidget::WantedWidth() const {
    return WidthOf(Text());
}

void StepWidget::Draw(Cells& cells, const Area& area, bool) {
    cells.Put(area.row, area.column, Text(), page_.Visible() ? Tone::kAccent : Tone::kFaint,
              area.width);
}

int PressedWidget::LeastWidth() const {
    const int whole = WantedWidth();
    return Behind().empty()
               ? std::min(whole,
                          std::max(kNarrowest, WidestWord(Bound()->Caption()) + WidthOf(Before())))
               : whole;
}

int PressedWidget::WantedWidth() const {
    return WidthOf(Before() + WithoutKey(Bound()->Caption()) + Behind());
}

int PressedWidget::HeightIn(int width) const {
    const int room = std::max(1, width - WidthOf(Before() + Behind()));
    return static_cast<int>(Wrapped(WithoutKey(Bound()->Caption()), room).size());
}

// Only a caption of one line has its key set off.
void PressedWidget::Draw(Cells& cells, const Area& area, bool hasFocus) {
    const Look look(ToneOf(hasFocus));
    const int signs = WidthOf(Before() + Behind());
    const auto lines =
        Wrapped(InShownDigits(WithoutKey(Bound()->Caption())), std::max(1, area.width - signs));
    const int longest = WidestLine(WithoutKey(Bound()->Caption()));
    const int width = std::min(area.width, longest + signs);
    const int left = area.column + (FromRight() ? area.width - width : 0);
    const int before = WidthOf(FromRight() ? Behind() : Before());
    const Area inside{area.row, left + before, 1, width - signs};
    cells.Fill({area.row, left, static_cast<int>(lines.size()), width}, look);
    cells.Put(area.row, left, FromRight() ? Mirrored(Behind()) : Before(), look);
    cells.PutRight(area.row, left, FromRight() ? Mirrored(Before()) : Behind(), look, width);
    if (lines.size() == 1) {
        PutCaption(cells, inside, Bound()->Caption(), look, FromRight());
        return;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        cells.PutAsIs(area.row + static_cast<int>(i), inside.column, lines[i], look, inside.width,
                      FromRight());
    }
}

bool PressedWidget::Press(const KeyPress& key) {
    if (!key.Is(U' ')) {
        return false;
    }
    Click();
    return true;
}

}  // namespace horavex
