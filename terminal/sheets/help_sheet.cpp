#include "terminal/sheets/help_sheet.h"

#include <algorithm>

#include "lang/own_digits.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kSides = 3;
constexpr int kRowsAround = 3;  // frame, and a line below it
constexpr int kWidest = 90;

/// A text as it is compared: numbers may stand and be typed in either digits.
std::u32string Sought(const std::string& text) {
    return Folded(InPlainDigits(text));
}

}  // namespace

HelpSheet::HelpSheet(HelpView view, Read read, std::function<void()> close)
    : view_(std::move(view)), read_(std::move(read)), close_(std::move(close)) {
    OpenPage(view_.page);
}

void HelpSheet::Turn(const HelpView& view) {
    view_ = view;
    OpenPage(view_.page);
}

void HelpSheet::OpenPage(std::size_t page) {
    page_ = page;
    first_ = 0;
    lines_.clear();  // they are made when they are drawn
    found_.reset();
}

bool HelpSheet::FromRight() const {
    return RunsFromRight(view_.pages.front().title);
}

std::vector<HelpSheet::Line> HelpSheet::LinesOf(std::size_t page, int width) const {
    std::vector<Line> lines;
    for (const HelpParagraph& paragraph : HelpParagraphs(read_(view_.pages.at(page).path))) {
        if (!lines.empty() && !paragraph.text.starts_with("•")) {
            lines.push_back({"", false, false});
        }
        bool goesOn = false;
        for (std::string& text : Wrapped(InShownDigits(paragraph.text), width)) {
            lines.push_back({std::move(text), paragraph.isHeading, goesOn});
            goesOn = true;
        }
    }
    return lines;
}

void HelpSheet::Draw(Cells& screen) {
    const int width = std::min(kWidest, screen.Columns() - 2 * kSides);
    if (width != width_) {
        lines_.clear();
        found_.reset();  // lines have other numbers
    }
    if (lines_.empty()) {
        width_ = width;
        lines_ = LinesOf(page_, width);
    }
    height_ = screen.Rows() - kRowsAround;
    const auto count = static_cast<int>(lines_.size());
    first_ = std::clamp(first_, 0, std::max(0, count - height_));
    const Area all{0, 0, screen.Rows(), screen.Columns()};
    screen.Fill(all);
    screen.Frame({0, 0, screen.Rows() - 1, screen.Columns()},
                 view_.title + " · " + view_.pages.at(page_).title, Tone::kFaint, Tone::kStrong);
    for (int row = 0; row < std::min(height_, count - first_); ++row) {
        const Line& line = lines_[static_cast<std::size_t>(first_ + row)];
        const bool isFound = found_ == static_cast<std::size_t>(first_ + row);
        const Look look(isFound ? Tone::kSelected
                                : (line.isHeading ? Tone::kAccent : Tone::kPlain));
        const int left = FromRight() ? screen.Columns() - kSides - width : kSides;
        screen.PutAsIs(row + 1, left, line.text, look, width, FromRight());
    }
    if (first_ + height_ < count) {
        screen.Put(height_, screen.Columns() - 1, "▾", Tone::kAccent);
    }
    const int last = screen.Rows() - 1;
    if (isTyping_) {
        screen.Put(last, 0, "/", Tone::kStrong);
        typed_.Draw(screen, {last, 1, 1, screen.Columns() - 1}, InShownDigits(sought_),
                    Tone::kPlain, true);
    } else {
        const std::string place =
            std::to_string(page_ + 1) + "/" + std::to_string(view_.pages.size());
        screen.PutCentred(last, 0, "↑ ↓   ← " + place + " →   /   Esc", Tone::kFaint,
                          screen.Columns());
    }
}

void HelpSheet::TurnPage(int step) {
    const auto count = static_cast<int>(view_.pages.size());
    OpenPage(static_cast<std::size_t>((static_cast<int>(page_) + step + count) % count));
}

void HelpSheet::Scroll(int lines) {
    first_ += lines;
}

/// From the line after the one found last, or else from the first on view, through the other pages,
/// back to it. False where the text is nowhere.
bool HelpSheet::FindNext() {
    const std::size_t pages = view_.pages.size();
    if (sought_.empty() ||
        FindFrom(page_, found_ ? *found_ + 1 : static_cast<std::size_t>(first_))) {
        return true;
    }
    for (std::size_t step = 1; step <= pages; ++step) {
        if (FindFrom((page_ + step) % pages, 0)) {
            return true;
        }
    }
    return false;
}

bool HelpSheet::FindFrom(std::size_t page, std::size_t line) {
    const std::vector<Line> lines = LinesOf(page, std::max(width_, 1));
    const std::u32string sought = Sought(sought_);
    for (std::size_t at = line; at < lines.size(); ++at) {
        const std::string rest =
            at + 1 < lines.size() && lines[at + 1].goesOn ? " " + lines[at + 1].text : "";
        if (Sought(lines[at].text + rest).find(sought) < Sought(lines[at].text).size()) {
            if (page != page_) {
                OpenPage(page);
            }
            first_ = static_cast<int>(at);
            found_ = at;
            return true;
        }
    }
    return false;
}

/// A text that is nowhere stays to be mended.
void HelpSheet::EndTyping(KeyCode by) {
    isTyping_ = by == KeyCode::kEnter && !FindNext();
}

void HelpSheet::PressInSearch(const KeyPress& key) {
    bool kept = false;
    if (key.code == KeyCode::kEnter || key.code == KeyCode::kEscape) {
        EndTyping(key.code);
        return;
    }
    sought_ = typed_.After(key, sought_, kept).value_or(sought_);
}

void HelpSheet::Press(const KeyPress& key) {
    if (isTyping_) {
        PressInSearch(key);
        return;
    }
    const int onward = FromRight() ? -1 : 1;
    if (key.code != KeyCode::kCharacter) {
        found_.reset();
    }
    switch (key.code) {
        case KeyCode::kUp:
            Scroll(-1);
            break;
        case KeyCode::kDown:
            Scroll(1);
            break;
        case KeyCode::kPageUp:
            Scroll(-height_);
            break;
        case KeyCode::kPageDown:
            Scroll(height_);
            break;
        case KeyCode::kHome:
            first_ = 0;
            break;
        case KeyCode::kEnd:
            Scroll(static_cast<int>(lines_.size()));
            break;
        case KeyCode::kLeft:
            TurnPage(-onward);
            break;
        case KeyCode::kRight:
            TurnPage(onward);
            break;
        case KeyCode::kEscape:
            close_();
            break;
        default:
            if (key.Is(U'/')) {
                isTyping_ = true;
                sought_.clear();
                typed_.MoveToEnd();
            } else if (key.Is(U'n')) {
                FindNext();
            } else if (key.Is(U' ')) {
                Scroll(height_);
            } else if (key.Is(U'q')) {
                close_();
            }
            break;
    }
}

}  // namespace horavex
