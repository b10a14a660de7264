#include "terminal/face/face_sheet.h"

#include <wctype.h>

#include <algorithm>

#include "base/utf8.h"
#include "terminal/face/arc_lines.h"
#include "terminal/face/big_digits.h"
#include "terminal/face/compass_rose.h"
#include "terminal/screen/glyphs.h"
#include "terminal/sheets/item_menu.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

struct MenuTitle {
    const char* variable;
    const char* otherwise;
    const char* command;
    const char* menu;
};

constexpr MenuTitle kTitles[] = {
    {"_root.azan", "Athan", "IDC_FS_azan", "mnuAthan"},
    {"_root.settings", "Settings", "IDC_FS_settings", "mnuSettings"},
    {"_root.tools", "Tools", "IDC_FS_tools", "mnuTools"},
    {"_root.help", "Help", "IDC_FS_help", "mnuHelp"},
};

constexpr int kWidestTitleGap = 3;
constexpr int kTimesRows = 8;  // six times in their frame
constexpr int kTimesWidth = 36;
constexpr int kArcRows = 3;  // at the least
constexpr int kMostArcRows = 9;
constexpr int kRowsWithDigits = 22;  // of a screen that has room for all but the sun's way

}  // namespace

FaceSheet::FaceSheet(Form& form, Host& host, TerminalFace& face)
    : FormSheet(form, host), face_(face) {}

std::string FaceSheet::TitleOf(std::size_t menu) const {
    return face_.Value(kTitles[menu].variable, kTitles[menu].otherwise);
}

/// The first letter of each title that no title before it has taken.
std::array<char32_t, FaceSheet::kMenus> FaceSheet::MenuKeys() const {
    std::array<char32_t, kMenus> keys{};
    for (std::size_t menu = 0; menu < kMenus; ++menu) {
        for (const char32_t letter : Folded(TitleOf(menu))) {
            const bool isTaken = std::find(keys.begin(), keys.end(), letter) != keys.end();
            if (!isTaken && ::iswalpha(static_cast<wint_t>(letter)) != 0) {
                keys.at(menu) = letter;
                break;
            }
        }
    }
    return keys;
}

/// Columns behind each title: fewer where the clock would have no room behind the last.
int FaceSheet::TitleGap() const {
    int free = Around().desk.Columns() - 1 - WidthOf(ClockText());
    for (std::size_t menu = 0; menu < kMenus; ++menu) {
        free -= WidthOf(TitleOf(menu));
    }
    return std::clamp(free / static_cast<int>(kMenus), 1, kWidestTitleGap);
}

std::string FaceSheet::ClockText() const {
    return face_.Day().clock + " ";
}

CellPlace FaceSheet::PlaceOf(const std::string& menu) const {
    int column = 1;
    for (std::size_t i = 0; i < kMenus && kTitles[i].menu != menu; ++i) {
        column += WidthOf(TitleOf(i)) + TitleGap();
    }
    return {1, column - 1};
}

// The command returns when the menu is closed; the arrow keys may have left it for its neighbour.
void FaceSheet::OpenMenu(std::size_t menu) {
    do {
        step_ = 0;
        face_.Tell(kTitles[menu].command);
        menu = (menu + kMenus + static_cast<std::size_t>(step_)) % kMenus;
    } while (step_ != 0 && !IsEnded());
}

void FaceSheet::Press(const KeyPress& key) {
    switch (key.code) {
        case KeyCode::kF1:
            frmMain->mnuHelpIndex.UserClick();
            return;
        case KeyCode::kF9:
            RunItemMenu(frmMain->mnuPopup, {}, Around());
            return;
        case KeyCode::kF10:
        case KeyCode::kEnter:
        case KeyCode::kDown:
        case KeyCode::kTab:
            OpenMenu(0);
            return;
        case KeyCode::kCharacter:
            break;
        default:
            return;
    }
    const auto letter = static_cast<char32_t>(::towlower(static_cast<wint_t>(key.character)));
    const auto keys = MenuKeys();
    const auto found = std::find(keys.begin(), keys.end(), letter);
    if (found != keys.end() && letter != 0) {
        OpenMenu(static_cast<std::size_t>(found - keys.begin()));
    } else if (key.Is(U'q') || key.Is(U'Q')) {
        frmMain->mnuExit.UserClick();
    }
}

void FaceSheet::DrawMenus(Cells& screen) const {
    const auto keys = MenuKeys();
    screen.Fill({0, 0, 1, screen.Columns()}, Tone::kSelected);
    int column = 1;
    for (std::size_t menu = 0; menu < kMenus; ++menu) {
        bool isMarked = false;
        for (const Glyph& glyph : GlyphsOf(TitleOf(menu))) {
            const bool isKey = !isMarked && Folded(glyph.text).starts_with(keys.at(menu));
            isMarked = isMarked || isKey;
            screen.Put(0, column, glyph.text, {Tone::kSelected, isKey});
            column += glyph.width;
        }
        column += TitleGap();
    }
    if (column + WidthOf(ClockText()) <= screen.Columns()) {
        screen.PutRight(0, 0, ClockText(), Tone::kSelected, screen.Columns());
    }
}

/// The dates, the place and the clocks. Returns the row below them.
int FaceSheet::DrawHeader(Cells& screen, int row) const {
    const FaceWords& day = face_.Day();
    const int width = screen.Columns();
    const std::string dates = face_.DayTitle() + "  ·  " + face_.HijriText();
    if (WidthOf(dates) <= width - 2) {
        screen.PutCentred(row++, 0, dates, Tone::kStrong, width);
    } else {
        screen.PutCentred(row++, 0, Clipped(face_.DayTitle(), width - 2), Tone::kStrong, width);
        screen.PutCentred(row++, 0, Clipped(face_.HijriText(), width - 2), Tone::kStrong, width);
    }
    screen.PutCentred(row++, 0, Clipped(day.place, width - 2), Tone::kFaint, width);
    if (!day.clocks.empty()) {
        screen.PutCentred(row++, 0, Clipped(day.clocks, width - 2), Tone::kFaint, width);
    }
    return row;
}

/// What comes next and how long until then. Returns the row below.
int FaceSheet::DrawCountdown(Cells& screen, int row, bool large) const {
    const FaceWords& day = face_.Day();
    const int width = screen.Columns();
    const std::string digits = CountdownDigits(day.seconds);
    screen.PutCentred(row++, 0, Clipped(face_.Value("_root.sNextPrayer"), width - 2), Tone::kAccent,
                      width);
    if (large) {
        const int left = (width - WidthOfBigDigits(digits)) / 2;
        PutBigDigits(screen, {row + 1, left}, digits, Tone::kAccent);
        row += kDigitRows + 2;
    } else {
        screen.PutCentred(row++, 0, day.countdownWords + " " + digits, Tone::kAccent, width);
    }
    if (!day.iqama.empty()) {
        screen.PutCentred(row - 1, 0, Clipped(day.iqama, width - 2), Tone::kPlain, width);
    }
    return row;
}

void FaceSheet::DrawTimes(Cells& screen, const Area& area) const {
    const FaceWords& day = face_.Day();
    screen.Frame(area, face_.Value("prayer_time", "Prayer Times"), Tone::kFaint, Tone::kStrong);
    const bool fromRight = !day.prayers.empty() && RunsFromRight(day.prayers.front().name);
    const int width = area.width - 6;
    for (std::size_t prayer = 0; prayer < day.prayers.size(); ++prayer) {
        const ToldPrayer& told = day.prayers[prayer];
        const bool isNext = prayer == day.next;
        const Look look(isNext ? Tone::kAccent : Tone::kPlain);
        const std::string& name = isNext && !day.tomorrow.empty() ? day.tomorrow : told.name;
        const int row = area.row + 1 + static_cast<int>(prayer);
        const std::string time = WidthOf(name) + WidthOf(told.time) < width ? told.time : told.cell;
        if (fromRight) {
            screen.PutRight(row, area.column + 3, name, look, width);
            screen.Put(row, area.column + 3, time, look, width);
        } else {
            screen.Put(row, area.column + 3, name, look, width);
            screen.PutRight(row, area.column + 3, time, look, width);
        }
        if (isNext) {
            screen.Put(row, fromRight ? area.column + area.width - 2 : area.column + 1,
                       fromRight ? "◂" : "▸", look);
        }
    }
}

void FaceSheet::DrawCompass(Cells& screen, CellPlace at) const {
    PutCompassRose(screen, at, face_.QiblaDegrees());
    const std::string words = face_.Value("qibla", "Qibla");
    screen.PutCentred(at.row + kRoseRows - 1, at.column - 2,
                      " " + words + " " + face_.Value("_root.icompassAngle").substr(0, 6) + "° ",
                      Tone::kPlain, kRoseColumns + 4);
}

void FaceSheet::Draw(Cells& screen) {
    if (IsEnded() || !Shown().Visible()) {
        return;
    }
    screen.Fill({0, 0, screen.Rows(), screen.Columns()});
    DrawMenus(screen);
    if (face_.Day().prayers.empty()) {
        return;
    }
    const bool large = screen.Rows() >= kRowsWithDigits;
    int row = DrawHeader(screen, large ? 2 : 1);
    row = DrawCountdown(screen, row, large);
    const bool besides = screen.Columns() >= kTimesWidth + kRoseColumns + 4;
    const int width = kTimesWidth + (besides ? kRoseColumns + 4 : 0);
    const int left = (screen.Columns() - width) / 2;
    DrawTimes(screen, {row, left, kTimesRows, kTimesWidth});
    if (besides) {
        DrawCompass(screen, {row, left + kTimesWidth + 4});
    }
    row += besides ? kRoseRows : kTimesRows;
    if (!face_.Day().timesNote.empty() && row < screen.Rows()) {
        screen.PutCentred(row++, 0, Clipped(face_.Day().timesNote, screen.Columns() - 2),
                          Tone::kFaint, screen.Columns());
    }
    const int arcRows = std::min(screen.Rows() - row, kMostArcRows);
    if (arcRows >= kArcRows) {
        PutDayArc(screen, {screen.Rows() - arcRows, 2, arcRows, screen.Columns() - 4}, face_.Day());
    }
}

}  // namespace horavex
