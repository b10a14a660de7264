#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "terminal/screen/sheet.h"

namespace horavex {

/// All sheets on the screen, the last one in front. Keys go to that one. Those that stay in front
/// lie behind all others in the list. Drawing is put off until
/// what is going on has ended, and done once for all that has changed.
class Desk {
public:
    /// Where a drawn screen goes to.
    using Show = std::function<void(const Cells&)>;
    /// Runs a function in a later turn of the event loop.
    using Later = std::function<void(std::function<void()>)>;

    Desk(Show show, Later later);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Rows and columns of the terminal.
    void SetSize(int rows, int columns);
    int Rows() const { return cells_.Rows(); }
    int Columns() const { return cells_.Columns(); }

    void BringUp(const std::shared_ptr<Sheet>& sheet);
    void TakeAway(const Sheet& sheet);
    bool IsEmpty() const { return sheets_.empty(); }

    /// The sheet in front, but for those that stay there; nullptr for none.
    const Sheet* Front() const;

    /// Something has changed.
    void Invalidate();

    /// Draws now, where something has changed.
    void Draw();

    void Press(const KeyPress& key);

    /// Hands a key on to the sheet below one that has no use for it.
    void PressBelow(const Sheet& sheet, const KeyPress& key);

    /// Keys while nothing lies on the desk.
    std::function<void()> onKeyOnEmpty;

private:
    /// There is no room to show any sheet.
    bool IsTooSmall() const;
    void TurnToNext();

    /// How many there are but for those that stay in front.
    std::ptrdiff_t CountOfOthers() const;

    Show show_;
    Later later_;
    Cells cells_{0, 0};
    std::vector<std::shared_ptr<Sheet>> sheets_;
    bool invalid_ = false;
};

}  // namespace horavex
