#pragma once

#include <string>
#include <vector>

#include "terminal/sheets/ending_sheet.h"

namespace horavex {

/// A box in the middle, with a text and a line of buttons, one of which ends it. A text that is
/// higher than the screen is moved through by the keys of lists.
class MessageSheet : public EndingSheet {
public:
    /// buttons: one at least, with "&" before their keys. The last one has the focus, and is what
    /// Escape presses.
    MessageSheet(std::string title, std::string text, std::vector<std::string> buttons);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

    /// The button that ended it, by its number.
    std::size_t Pressed() const { return at_; }

private:
    int WidthOfButtons() const;
    void DrawText(Cells& screen, const Area& room);
    void DrawButtons(Cells& screen, CellPlace at) const;
    void Step(int step);
    void PressAccessKey(char32_t letter);

    std::string title_;
    std::string text_;
    std::vector<std::string> buttons_;
    std::size_t at_;
    int first_ = 0;
    int height_ = 1;  // rows of the text when it was last drawn
};

}  // namespace horavex
