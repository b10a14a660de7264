#pragma once

#include <array>
#include <string>

#include "forms/combo_box.h"

namespace horavex {

/// Keeps three combos on a day that exists in the calendar of CurrentCalendar: an edit that makes
/// none goes back to the text that was there before. The program's own dates pass unchecked, since
/// all three combos change before they are one date again.
class DateGuard {
public:
    /// Sets the handlers of the combos and forgets the texts of former ones.
    void Bind(ComboBox& day, ComboBox& month, ComboBox& year);

    /// Shows a date.
    void SetDate(int day, int month, int year);

private:
    /// A combo and its last good text; empty until it first gets the focus.
    struct Guarded {
        ComboBox* combo = nullptr;
        std::string lastGood;
    };

    void Watch(Guarded& guarded, ComboBox& combo);
    void Check(Guarded& guarded);
    std::string DateText() const;

    std::array<Guarded, 3> guarded_;  // day, month, year
    bool held_ = false;
};

/// Fills a list with the numbers from first to last.
void FillNumbers(ComboBox& combo, int first, int last);

}  // namespace horavex
