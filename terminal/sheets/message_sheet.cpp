#include "terminal/sheets/message_sheet.h"

#include <algorithm>

#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kWidest = 64;
constexpr int kSides = 3;
constexpr int kRowsAround = 5;  // frame, a blank row at the top, one with the button between blanks

/// A box in the middle, with a text and a line of buttons below it.
void DrawBox(Cells& screen, const std::string& title, const std::string& text,
             const std::string& buttons) {
    const int wanted = std::max({WidestLine(text), WidthOf(title) + 4, WidthOf(buttons)});
    const int width = std::clamp(wanted, 20, std::min(kWidest, screen.Columns() - 2 * kSides));
    std::vector<std::string> lines = Wrapped(text, width);
    lines.resize(
        std::min(lines.size(), static_cast<std::size_t>(std::max(1, screen.Rows() - kRowsAround))));
    const auto height = static_cast<int>(lines.size()) + kRowsAround;
    const Area box{std::max(0, (screen.Rows() - height) / 2),
                   (screen.Columns() - width) / 2 - kSides, height, width + 2 * kSides};
    screen.Fill(box);
    screen.Frame(box, title, Tone::kPlain, Tone::kStrong);
    const bool fromRight = RunsFromRight(text);
    int row = box.row + 2;
    for (const std::string& line : lines) {
        if (fromRight) {
            screen.PutRight(row, box.column + kSides, line, Tone::kPlain, width);
        } else {
            screen.Put(row, box.column + kSides, line, Tone::kPlain, width);
        }
        ++row;
    }
    screen.PutCentred(box.row + height - 2, box.column, buttons, Tone::kFocus, box.width);
}

}  // namespace

MessageSheet::MessageSheet(std::string title, std::string text)
    : title_(std::move(title)), text_(std::move(text)) {}

void MessageSheet::Draw(Cells& screen) {
    DrawBox(screen, title_, text_, "[ OK ]");
}

void MessageSheet::Press(const KeyPress& key) {
    if (key.code == KeyCode::kEnter || key.code == KeyCode::kEscape || key.Is(U' ') ||
        key.Is(U'o') || key.Is(U'O')) {
        End();
    }
}

void QuestionSheet::Draw(Cells& screen) {
    DrawBox(screen, {}, text_, "[ Y / N ]");
}

void QuestionSheet::Press(const KeyPress& key) {
    isYes_ = key.Is(U'y') || key.Is(U'Y');
    if (isYes_ || key.Is(U'n') || key.Is(U'N') || key.code == KeyCode::kEscape) {
        End();
    }
}

}  // namespace horavex
