#include "terminal/screen/curses_screen.h"

#define NCURSES_WIDECHAR 1
#define NCURSES_NOMACROS 1
#include <curses.h>
#include <langinfo.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <stdexcept>

#include "base/utf8.h"
#include "terminal/screen/cursor_ability.h"

namespace horavex {

namespace {

constexpr int kEscapeDelay = 100;   // milliseconds in which a key's sequence comes whole
constexpr int kDefaultColour = -1;  // of the terminal itself

/// Colours by their numbers in a terminal: of the 16 that each user has chosen, so that they suit
/// the ground.
struct ToneLook {
    attr_t attributes;
    short colour;
    attr_t withoutColours;
};

constexpr attr_t kBold = A_BOLD;

ToneLook LookOfTone(Tone tone) {
    switch (tone) {
        case Tone::kStrong:
            return {kBold, kDefaultColour, kBold};
        case Tone::kAccent:
            return {kBold, COLOR_YELLOW, kBold};
        case Tone::kFaint:
            return {0, COLOR_CYAN, 0};
        case Tone::kField:
            return {A_UNDERLINE, kDefaultColour, A_UNDERLINE};
        case Tone::kFocus:
            return {A_REVERSE, kDefaultColour, A_REVERSE};
        case Tone::kSelected:
            return {A_REVERSE, COLOR_CYAN, A_BOLD | A_UNDERLINE};
        case Tone::kPlain:
            break;
    }
    return {0, kDefaultColour, 0};
}

/// The nearest colour of the cube of 216 that terminals with 256 colours have.
int NearestColour(const Colour& colour) {
    const auto step = [](int level) {
        return level < 48 ? 0 : level < 115 ? 1 : (level - 35) / 40;
    };
    return 16 + 36 * step(colour.red) + 6 * step(colour.green) + step(colour.blue);
}

/// Of the eight that every terminal with colours has.
int PlainColour(const Colour& colour) {
    constexpr int kHalf = 110;
    return (colour.red > kHalf ? COLOR_RED : 0) | (colour.green > kHalf ? COLOR_GREEN : 0) |
           (colour.blue > kHalf ? COLOR_BLUE : 0);
}

int ColourNumber(const std::optional<Colour>& colour) {
    if (!colour) {
        return kDefaultColour;
    }
    return COLORS >= 256 ? NearestColour(*colour) : PlainColour(*colour);
}

std::optional<KeyCode> CodeOf(wint_t key) {
    switch (key) {
        case KEY_UP:
            return KeyCode::kUp;
        case KEY_DOWN:
            return KeyCode::kDown;
        case KEY_LEFT:
            return KeyCode::kLeft;
        case KEY_RIGHT:
            return KeyCode::kRight;
        case KEY_PPAGE:
            return KeyCode::kPageUp;
        case KEY_NPAGE:
            return KeyCode::kPageDown;
        case KEY_HOME:
            return KeyCode::kHome;
        case KEY_END:
            return KeyCode::kEnd;
        case KEY_BACKSPACE:
            return KeyCode::kBackspace;
        case KEY_DC:
            return KeyCode::kDelete;
        case KEY_BTAB:
            return KeyCode::kBackTab;
        case KEY_ENTER:
            return KeyCode::kEnter;
        case KEY_F(1):
            return KeyCode::kF1;
        case KEY_F(6):
            return KeyCode::kF6;
        case KEY_F(9):
            return KeyCode::kF9;
        case KEY_F(10):
            return KeyCode::kF10;
        default:
            return std::nullopt;
    }
}

KeyPress CharacterPress(wint_t character) {
    constexpr wint_t kDelete = 0x7f;
    switch (character) {
        case '\r':
        case '\n':
            return {KeyCode::kEnter};
        case '\t':
            return {KeyCode::kTab};
        case '\b':
        case kDelete:
            return {KeyCode::kBackspace};
        case 0x1b:
            return {KeyCode::kEscape};
        default:
            return CharacterKey(static_cast<char32_t>(character));
    }
}

/// The escape key, or a character with Alt, which comes as both at once. Any other key behind the
/// escape key stays to be read.
KeyPress EscapeOrAlt() {
    wint_t next = 0;
    const int kind = ::get_wch(&next);
    if (kind == KEY_CODE_YES) {
        ::ungetch(static_cast<int>(next));
    } else if (kind == OK) {
        const KeyPress press = CharacterPress(next);
        if (press.code == KeyCode::kCharacter) {
            return CharacterKey(press.character, true);
        }
        ::unget_wch(static_cast<wchar_t>(next));
    }
    return {KeyCode::kEscape};
}

/// The next key that the program has a use for; nothing where none has come.
std::optional<KeyPress> NextKey() {
    wint_t key = 0;
    for (int kind = ::get_wch(&key); kind != ERR; kind = ::get_wch(&key)) {
        if (kind == OK) {
            const KeyPress press = CharacterPress(key);
            return press.code == KeyCode::kEscape ? EscapeOrAlt() : press;
        }
        if (const auto code = CodeOf(key)) {
            return KeyPress{*code};
        }
    }
    return std::nullopt;
}

/// Texts are UTF-8, whatever the environment says.
void SetUtf8Locale() {
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(::nl_langinfo(CODESET), "UTF-8") != 0) {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

/// Holds back the key that stops a program while the screen is drawn: the library ignores its
/// signal meanwhile, and one that came then would be lost. What is held back comes at the end.
class HeldStop {
public:
    HeldStop() {
        sigset_t stop;
        ::sigemptyset(&stop);
        ::sigaddset(&stop, SIGTSTP);
        ::pthread_sigmask(SIG_BLOCK, &stop, &before_);
    }
    ~HeldStop() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldStop(const HeldStop&) = delete;
    HeldStop& operator=(const HeldStop&) = delete;

private:
    sigset_t before_;
};

void RefreshScreen() {
    const HeldStop held;
    ::refresh();
}

bool IsUnset(const char* variable) {
    const char* value = std::getenv(variable);
    return value == nullptr || *value == '\0';
}

}  // namespace

CursesScreen::CursesScreen() {
    SetUtf8Locale();
    if (::isatty(STDIN_FILENO) == 0 || ::isatty(STDOUT_FILENO) == 0 || IsUnset("TERM")) {
        throw NoTerminal("needs a terminal; horavexctl prints the times without one");
    }
    if (!CanMoveCursor() || ::newterm(nullptr, stdout, stdin) == nullptr) {
        throw NoTerminal("the terminal \"" + std::string(std::getenv("TERM")) +
                         "\" cannot move its cursor; horavexctl prints the times on any");
    }
    ::cbreak();
    ::noecho();
    ::nonl();
    ::keypad(stdscr, TRUE);
    ::nodelay(stdscr, TRUE);
    if (IsUnset("ESCDELAY")) {
        ::set_escdelay(kEscapeDelay);
    }
    SetUpColours();
}

CursesScreen::~CursesScreen() {
    Leave();
}

void CursesScreen::SetUpColours() {
    hasColours_ = IsUnset("NO_COLOR") && ::has_colors() && ::start_color() == OK &&
                  ::use_default_colors() == OK;
}

int CursesScreen::Rows() const {
    return ::getmaxy(stdscr);
}

int CursesScreen::Columns() const {
    return ::getmaxx(stdscr);
}

int CursesScreen::PairOf(const Look& look) {
    if (!hasColours_) {
        return 0;
    }
    if (look.ink || look.ground) {
        return ::alloc_pair(ColourNumber(look.ink), ColourNumber(look.ground));
    }
    const int colour = LookOfTone(look.tone).colour;
    return colour == kDefaultColour ? 0 : ::alloc_pair(colour, kDefaultColour);
}

void CursesScreen::PutCell(int row, int column, const Cell& cell) {
    const ToneLook tone = LookOfTone(cell.look.tone);
    const attr_t attributes = (hasColours_ ? tone.attributes : tone.withoutColours) |
                              (cell.look.key ? static_cast<attr_t>(A_UNDERLINE) : 0);
    const std::u32string characters = DecodeUtf8(cell.text).value_or(U"?");
    std::array<wchar_t, CCHARW_MAX + 1> wide{};
    for (std::size_t i = 0; i < std::min<std::size_t>(characters.size(), CCHARW_MAX); ++i) {
        wide.at(i) = static_cast<wchar_t>(characters[i]);
    }
    int pair = PairOf(cell.look);
    cchar_t character{};
    if (::setcchar(&character, wide.data(), attributes, 0, &pair) == OK) {
        ::mvadd_wch(row, column, &character);
    }
}

void CursesScreen::Show(const Cells& cells) {
    if (isLeft_) {
        return;
    }
    ::erase();
    for (int row = 0; row < cells.Rows(); ++row) {
        for (int column = 0; column < cells.Columns(); ++column) {
            if (!cells.At(row, column).text.empty()) {
                PutCell(row, column, cells.At(row, column));
            }
        }
    }
    ::curs_set(cells.Cursor() ? 1 : 0);
    if (cells.Cursor()) {
        ::move(cells.Cursor()->row, cells.Cursor()->column);
    }
    RefreshScreen();
}

bool CursesScreen::HasInput() const {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 0) < 0 || (input.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

void CursesScreen::ReadKeys(const std::function<void(const KeyPress&)>& take) {
    while (const auto key = NextKey()) {
        take(*key);
    }
}

void CursesScreen::TakeSize() {
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 && size.ws_col > 0) {
        ::resizeterm(size.ws_row, size.ws_col);
    }
}

void CursesScreen::Leave() {
    if (!isLeft_) {
        isLeft_ = true;
        ::curs_set(1);
        ::endwin();
    }
}

void CursesScreen::Return() {
    isLeft_ = false;
    Redraw();
}

void CursesScreen::Redraw() {
    ::clearok(stdscr, TRUE);
    RefreshScreen();
}

void CursesScreen::Beep() {
    ::beep();
}

}  // namespace horavex
