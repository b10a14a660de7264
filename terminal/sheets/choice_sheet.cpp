#include "terminal/sheets/choice_sheet.h"

#include <wctype.h>

#include <algorithm>

#include "platform/platform.h"
#include "terminal/forms/widget.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kSides = 6;  // columns of the frame, the mark and the sign of what lies inside

/// Begun without a choice, and ended with the sheet whatever happens.
class OnDesk {
public:
    OnDesk(Desk& desk, const std::shared_ptr<Sheet>& sheet) : desk_(desk), sheet_(sheet) {
        desk_.BringUp(sheet_);
    }
    ~OnDesk() { desk_.TakeAway(*sheet_); }
    OnDesk(const OnDesk&) = delete;
    OnDesk& operator=(const OnDesk&) = delete;

private:
    Desk& desk_;
    std::shared_ptr<Sheet> sheet_;
};

}  // namespace

ChoiceSheet::ChoiceSheet(std::vector<Choice> choices, int at, const Look& look)
    : choices_(std::move(choices)), look_(look), at_(at) {
    if (!CanStandOn(at_)) {
        at_ = -1;
        Move(1);
    }
}

bool ChoiceSheet::CanStandOn(int at) const {
    return at >= 0 && at < static_cast<int>(choices_.size()) &&
           !choices_[static_cast<std::size_t>(at)].separator;
}

/// To the next one, from the last to the first and back.
void ChoiceSheet::Move(int step) {
    const auto count = static_cast<int>(choices_.size());
    for (int tried = 1; tried <= count; ++tried) {
        const int next = ((at_ < 0 && step < 0 ? 0 : at_) + tried * step + 2 * count) % count;
        if (CanStandOn(next)) {
            at_ = next;
            return;
        }
    }
}

void ChoiceSheet::Take() {
    if (CanStandOn(at_) && choices_[static_cast<std::size_t>(at_)].enabled) {
        chosen_ = at_;
        End();
    }
}

/// Inward it opens what has more inside.
void ChoiceSheet::LeaveSideways(int step) {
    const int inward = look_.fromRight ? -1 : 1;
    if (step == inward && CanStandOn(at_) && choices_[static_cast<std::size_t>(at_)].opens) {
        Take();
    } else if (look_.sideways) {
        step_ = step;
        End();
    }
}

void ChoiceSheet::Find(char32_t character) {
    if (TakeByKey(character)) {
        return;
    }
    std::vector<std::string> captions;
    for (const Choice& choice : choices_) {
        captions.push_back(WithoutKey(choice.caption));
    }
    const int found = search_.After(character, captions, at_, Ports().clock.SteadySeconds());
    if (CanStandOn(found)) {
        at_ = found;
    }
}

/// A key of one alone takes it; one of several goes from one to the next. False for no key.
bool ChoiceSheet::TakeByKey(char32_t character) {
    const auto wanted = static_cast<char32_t>(::towupper(static_cast<wint_t>(character)));
    const auto count = static_cast<int>(choices_.size());
    std::vector<int> found;
    for (int tried = 1; tried <= count; ++tried) {
        const int index = (at_ + tried + count) % count;
        if (CanStandOn(index) &&
            AccessKey(choices_[static_cast<std::size_t>(index)].caption) == wanted) {
            found.push_back(index);
        }
    }
    if (found.empty()) {
        return false;
    }
    at_ = found.front();
    if (found.size() == 1) {
        Take();
    }
    return true;
}

void ChoiceSheet::Press(const KeyPress& key) {
    switch (key.code) {
        case KeyCode::kUp:
            Move(-1);
            break;
        case KeyCode::kDown:
            Move(1);
            break;
        case KeyCode::kPageUp:
            at_ = std::max(at_ - height_, 0) + 1;
            Move(-1);
            break;
        case KeyCode::kPageDown:
            at_ = std::min(at_ + height_, static_cast<int>(choices_.size()) - 1) - 1;
            Move(1);
            break;
        case KeyCode::kHome:
            at_ = -1;
            Move(1);
            break;
        case KeyCode::kEnd:
            at_ = 0;
            Move(-1);
            break;
        case KeyCode::kLeft:
            LeaveSideways(-1);
            break;
        case KeyCode::kRight:
            LeaveSideways(1);
            break;
        case KeyCode::kEnter:
            Take();
            break;
        case KeyCode::kEscape:
        case KeyCode::kTab:
        case KeyCode::kF10:
            End();
            break;
        default:
            if (key.Is(U' ')) {
                Take();
            } else if (key.IsText()) {
                Find(key.character);
            }
            break;
    }
}

void ChoiceSheet::DrawChoice(Cells& screen, const Area& line, int index) const {
    const Choice& choice = choices_[static_cast<std::size_t>(index)];
    if (choice.separator) {
        for (int column = 0; column < line.width; ++column) {
            screen.Put(line.row, line.column + column, "─", Tone::kFaint);
        }
        return;
    }
    const Tone usual = choice.enabled ? Tone::kPlain : Tone::kFaint;
    const horavex::Look look(index == at_ ? Tone::kFocus : usual);
    screen.Fill(line, look);
    const std::string mark = choice.checked ? "✓" : " ";
    const std::string more = choice.opens ? (look_.fromRight ? "◂" : "▸") : " ";
    screen.Put(line.row, line.column, look_.fromRight ? more : mark, look);
    screen.Put(line.row, line.column + line.width - 1, look_.fromRight ? mark : more, look);
    PutCaption(screen, {line.row, line.column + 2, 1, line.width - 4}, choice.caption, look,
               look_.fromRight);
}

void ChoiceSheet::Draw(Cells& screen) {
    int widest = 4;
    for (const Choice& choice : choices_) {
        widest = std::max(widest, WidthOf(WithoutKey(choice.caption)));
    }
    const int count = static_cast<int>(choices_.size());
    const int width = std::min(widest + kSides, screen.Columns());
    height_ = std::min(count, screen.Rows() - 4);
    const CellPlace wanted = look_.place.value_or(
        CellPlace{(screen.Rows() - height_ - 2) / 2, (screen.Columns() - width) / 2});
    const Area window{std::clamp(wanted.row, 0, screen.Rows() - height_ - 2),
                      std::clamp(wanted.column, 0, screen.Columns() - width), height_ + 2, width};
    first_ = std::clamp(first_, std::max(0, at_ - height_ + 1), std::max(at_, 0));
    screen.Fill(window);
    screen.Frame(window, {}, Tone::kPlain, Tone::kPlain);
    for (int row = 0; row < height_; ++row) {
        DrawChoice(screen, {window.row + 1 + row, window.column + 1, 1, width - 2}, first_ + row);
    }
    if (first_ > 0) {
        screen.Put(window.row, window.column + width - 3, "▴", Tone::kAccent);
    }
    if (first_ + height_ < count) {
        screen.Put(window.row + height_ + 1, window.column + width - 3, "▾", Tone::kAccent);
    }
    const std::string refusal =
        CanStandOn(at_) ? choices_[static_cast<std::size_t>(at_)].refusal : std::string();
    if (!refusal.empty()) {
        screen.Fill({screen.Rows() - 1, 0, 1, screen.Columns()});
        screen.PutCentred(screen.Rows() - 1, 0, Clipped(refusal, screen.Columns() - 2),
                          Tone::kFaint, screen.Columns());
    }
}

void RunSheet(const std::shared_ptr<EndingSheet>& sheet, FormSheet::Host& host) {
    const OnDesk onDesk(host.desk, sheet);
    host.runWhile([&sheet] { return !sheet->HasEnded(); });
}

int ChooseFrom(const std::vector<std::string>& texts, int chosen,
               const std::vector<std::string>& reasons, bool fromRight, FormSheet::Host& host) {
    std::vector<Choice> choices;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        Choice choice;
        choice.caption = texts[i];
        choice.refusal = i < reasons.size() ? reasons[i] : std::string();
        choice.enabled = choice.refusal.empty();
        choices.push_back(std::move(choice));
    }
    if (choices.empty()) {
        return -1;
    }
    const auto sheet = std::make_shared<ChoiceSheet>(
        std::move(choices), chosen, ChoiceSheet::Look{std::nullopt, fromRight, false});
    RunSheet(sheet, host);
    return sheet->Chosen();
}

}  // namespace horavex
