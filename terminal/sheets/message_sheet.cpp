#include "terminal/sheets/message_sheet.h"

#include <wctype.h>

#include <algorithm>

#include "lang/own_digits.h"
#include "terminal/forms/widget.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kWidest = 64;
constexpr int kNarrowest = 20;
constexpr int kSides = 3;
constexpr int kRowsAround =
    5;  // frame, a blank row at the top, one with the buttons between blanks
constexpr int kButtonSides = 4;  // "[ " and " ]"
constexpr int kButtonGap = 2;

}  // namespace

MessageSheet::MessageSheet(std::string title, std::string text, std::vector<std::string> buttons)
    : title_(std::move(title)),
      text_(std::move(text)),
      buttons_(std::move(buttons)),
      at_(buttons_.size() - 1) {}

int MessageSheet::WidthOfButtons() const {
    int width = -kButtonGap;
    for (const std::string& button : buttons_) {
        width += WidthOf(WithoutKey(button)) + kButtonSides + kButtonGap;
    }
    return width;
}

void MessageSheet::Draw(Cells& screen) {
    const int wanted = std::max({WidestLine(text_), WidthOf(title_) + 4, WidthOfButtons()});
    const int width =
        std::clamp(wanted, kNarrowest, std::min(kWidest, screen.Columns() - 2 * kSides));
    const auto lines = static_cast<int>(Wrapped(text_, width).size());
    height_ = std::min(lines, std::max(1, screen.Rows() - kRowsAround));
    const Area box{std::max(0, (screen.Rows() - height_ - kRowsAround) / 2),
                   (screen.Columns() - width) / 2 - kSides, height_ + kRowsAround,
                   width + 2 * kSides};
    screen.Fill(box);
    screen.Frame(box, title_, Tone::kPlain, Tone::kStrong);
    DrawText(screen, {box.row + 2, box.column + kSides, height_, width});
    DrawButtons(screen,
                {box.row + box.height - 2, box.column + (box.width - WidthOfButtons()) / 2});
}

void MessageSheet::DrawText(Cells& screen, const Area& room) {
    const std::vector<std::string> lines = Wrapped(InShownDigits(text_), room.width);
    const int most = static_cast<int>(lines.size()) - room.height;
    first_ = std::clamp(first_, 0, most);
    const bool fromRight = RunsFromRight(text_);
    for (int row = 0; row < room.height; ++row) {
        const std::string& line = lines[static_cast<std::size_t>(first_ + row)];
        screen.PutAsIs(room.row + row, room.column, line, Tone::kPlain, room.width, fromRight);
    }
    const int edge = room.column + room.width + kSides - 1;
    if (first_ > 0) {
        screen.Put(room.row, edge, "▴", Tone::kAccent);
    }
    if (first_ < most) {
        screen.Put(room.row + room.height - 1, edge, "▾", Tone::kAccent);
    }
}

void MessageSheet::DrawButtons(Cells& screen, CellPlace at) const {
    const bool fromRight = RunsFromRight(text_);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const std::size_t button = fromRight ? buttons_.size() - 1 - i : i;
        const int width = WidthOf(WithoutKey(buttons_[button]));
        const Look look(button == at_ ? Tone::kFocus : Tone::kPlain);
        screen.Put(at.row, at.column, "[ ", look);
        PutCaption(screen, {at.row, at.column + 2, 1, width}, buttons_[button], look, fromRight);
        screen.Put(at.row, at.column + 2 + width, " ]", look);
        at.column += width + kButtonSides + kButtonGap;
    }
}

/// From the last button to the first and back.
void MessageSheet::Step(int step) {
    const auto count = static_cast<int>(buttons_.size());
    at_ = static_cast<std::size_t>((static_cast<int>(at_) + step + count) % count);
}

void MessageSheet::PressAccessKey(char32_t letter) {
    const auto capital = static_cast<char32_t>(::towupper(static_cast<wint_t>(letter)));
    for (std::size_t button = 0; button < buttons_.size(); ++button) {
        if (AccessKey(buttons_[button]) == capital) {
            at_ = button;
            End();
        }
    }
}

void MessageSheet::Press(const KeyPress& key) {
    const int onward = RunsFromRight(text_) ? -1 : 1;
    switch (key.code) {
        case KeyCode::kUp:
            --first_;
            break;
        case KeyCode::kDown:
            ++first_;
            break;
        case KeyCode::kPageUp:
            first_ -= height_;
            break;
        case KeyCode::kPageDown:
            first_ += height_;
            break;
        case KeyCode::kLeft:
            Step(-onward);
            break;
        case KeyCode::kRight:
            Step(onward);
            break;
        case KeyCode::kTab:
            Step(1);
            break;
        case KeyCode::kBackTab:
            Step(-1);
            break;
        case KeyCode::kEscape:
            at_ = buttons_.size() - 1;
            End();
            break;
        case KeyCode::kEnter:
            End();
            break;
        default:
            if (key.Is(U' ')) {
                End();
            } else {
                PressAccessKey(key.character);
            }
            break;
    }
}

}  // namespace horavex
