#include "terminal/face/athan_sheet.h"

#include <algorithm>

#include "athan/athan_state.h"
#include "base/int16.h"
#include "lang/language_pack.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

AthanSheet::AthanSheet(Form& form, Host& host, TerminalFace& face)
    : FormSheet(form, host), face_(face) {}

// The program may show the window before any athan, and moves it off the screen behind one.
bool AthanSheet::IsUp() const {
    return Shown().Visible() && athanActive != kFalse;
}

void AthanSheet::FormChanged() {
    Desk& desk = Around().desk;
    IsUp() ? desk.BringUp(shared_from_this()) : desk.TakeAway(*this);
}

void AthanSheet::Draw(Cells& screen) {
    if (IsEnded() || !IsUp()) {
        return;
    }
    constexpr int kRows = 8;
    const std::string text = face_.Value("_root.character_textField");
    const std::string place = face_.Value("_root.place_textField");
    const std::string stop = "[ ■ " + GetLangString("notices", "Stop", "Stop") + " ]";
    const int width = std::clamp(std::max(WidthOf(text), WidthOf(place)) + 8, 34, screen.Columns());
    const Area card{screen.Rows() - kRows - 1, screen.Columns() - width - 1, kRows, width};
    screen.Fill(card);
    screen.Frame(card, {}, Tone::kAccent, Tone::kAccent);
    screen.PutCentred(card.row + 1, card.column, "☾", Tone::kAccent, width);
    screen.PutCentred(card.row + 3, card.column, Clipped(text, width - 4), Tone::kStrong, width);
    screen.PutCentred(card.row + 4, card.column, Clipped(place, width - 4), Tone::kPlain, width);
    screen.PutCentred(card.row + 6, card.column, stop, Tone::kFocus, width);
}

void AthanSheet::Press(const KeyPress& key) {
    if (key.code == KeyCode::kEnter || key.code == KeyCode::kEscape) {
        face_.Tell("IDC_FS_Stop");
    } else {
        Around().desk.PressBelow(*this, key);
    }
}

}  // namespace horavex
