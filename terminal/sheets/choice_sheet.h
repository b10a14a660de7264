#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "terminal/forms/beginning_search.h"
#include "terminal/forms/form_sheet.h"
#include "terminal/sheets/ending_sheet.h"

namespace horavex {

/// An entry of a menu, or an item of a list that drops down.
struct Choice {
    std::string caption;  // "&" before its key
    std::string refusal;  // why it cannot be chosen; told where it is
    bool enabled = true;
    bool checked = false;
    bool opens = false;      // has more inside
    bool separator = false;  // a mere line
};

/// Lets the user choose one of several, by the arrow keys, by their keys or the letters that they
/// begin with. It ends with the choice, with the escape key, and sideways where that is allowed.
class ChoiceSheet : public EndingSheet {
public:
    struct Look {
        std::optional<CellPlace> place = std::nullopt;  // of its upper corner; else in the middle
        bool fromRight = false;
        bool sideways = false;  // the arrow keys leave it for a neighbour
    };

    /// at: where to begin, -1 for anywhere.
    ChoiceSheet(std::vector<Choice> choices, int at, const Look& look);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

    /// The chosen one, -1 for none.
    int Chosen() const { return chosen_; }

    /// Where the user went on to: -1 for what lies left of it, 1 for the right, 0 nowhere.
    int Step() const { return step_; }

private:
    bool CanStandOn(int at) const;
    void Move(int step);
    void Take();
    void LeaveSideways(int step);
    void Find(char32_t character);
    bool TakeByKey(char32_t character);
    void DrawChoice(Cells& screen, const Area& line, int index) const;

    std::vector<Choice> choices_;
    Look look_;
    int at_ = -1;
    BeginningSearch search_;
    int first_ = 0;
    int height_ = 1;
    int chosen_ = -1;
    int step_ = 0;
};

/// Runs a sheet until it ends.
void RunSheet(const std::shared_ptr<EndingSheet>& sheet, FormSheet::Host& host);

/// Lets the user choose one of some texts, -1 where none is chosen. Those with a reason cannot be.
int ChooseFrom(const std::vector<std::string>& texts, int chosen,
               const std::vector<std::string>& reasons, bool fromRight, FormSheet::Host& host);

}  // namespace horavex
