#include "terminal/screen/desk.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace horavex {

namespace {

constexpr int kLeastRows = 16;
constexpr int kLeastColumns = 40;

void DrawTooSmall(Cells& screen) {
    const std::string need = std::to_string(kLeastColumns) + " × " + std::to_string(kLeastRows);
    screen.PutCentred(screen.Rows() / 2, 0, "Horavex: " + need, Tone::kStrong, screen.Columns());
}

}  // namespace

Desk::Desk(Show show, Later later) : show_(std::move(show)), later_(std::move(later)) {}

// A sheet that ends takes itself away, which must not be from a list that is ending.
Desk::~Desk() {
    const auto held = std::exchange(sheets_, {});
}

void Desk::SetSize(int rows, int columns) {
    cells_ = Cells(rows, columns);
    Invalidate();
}

void Desk::BringUp(const std::shared_ptr<Sheet>& sheet) {
    std::erase(sheets_, sheet);
    sheets_.insert(sheet->StaysInFront() ? sheets_.end() : sheets_.begin() + CountOfOthers(),
                   sheet);
    Invalidate();
}

void Desk::TakeAway(const Sheet& sheet) {
    std::erase_if(sheets_, [&](const auto& held) { return held.get() == &sheet; });
    Invalidate();
}

const Sheet* Desk::Front() const {
    const std::ptrdiff_t count = CountOfOthers();
    return count == 0 ? nullptr : sheets_[static_cast<std::size_t>(count) - 1].get();
}

std::ptrdiff_t Desk::CountOfOthers() const {
    return std::count_if(sheets_.begin(), sheets_.end(),
                         [](const auto& sheet) { return !sheet->StaysInFront(); });
}

bool Desk::IsTooSmall() const {
    return cells_.Rows() < kLeastRows || cells_.Columns() < kLeastColumns;
}

void Desk::Invalidate() {
    if (!std::exchange(invalid_, true)) {
        later_([this] { Draw(); });
    }
}

void Desk::Draw() {
    if (!std::exchange(invalid_, false)) {
        return;
    }
    cells_ = Cells(cells_.Rows(), cells_.Columns());
    if (IsTooSmall()) {
        DrawTooSmall(cells_);
    } else {
        for (const auto& sheet : std::vector(sheets_)) {
            cells_.SetCursor(std::nullopt);
            sheet->Draw(cells_);
        }
    }
    show_(cells_);
}

void Desk::Press(const KeyPress& key) {
    if (IsTooSmall()) {
        return;  // nobody sees what a key would do
    }
    if (sheets_.empty()) {
        if (onKeyOnEmpty) {
            onKeyOnEmpty();
        }
    } else if (key.code == KeyCode::kF6) {
        TurnToNext();
    } else {
        const std::shared_ptr<Sheet> front = sheets_.back();  // it may end by the key
        front->Press(key);
    }
    Invalidate();
}

void Desk::PressBelow(const Sheet& sheet, const KeyPress& key) {
    const auto found = std::find_if(sheets_.begin(), sheets_.end(),
                                    [&](const auto& held) { return held.get() == &sheet; });
    if (found != sheets_.end() && found != sheets_.begin()) {
        const std::shared_ptr<Sheet> below = *(found - 1);
        below->Press(key);
    }
}

// What lies in front goes to the back of those that users may turn to.
void Desk::TurnToNext() {
    const auto end = sheets_.begin() + CountOfOthers();
    const auto modal = std::find_if(std::make_reverse_iterator(end), sheets_.rend(),
                                    [](const auto& sheet) { return sheet->IsModal(); });
    const auto first = modal == sheets_.rend() ? sheets_.begin() : modal.base() - 1;
    if (first != end) {
        std::rotate(first, end - 1, end);
    }
}

}  // namespace horavex
