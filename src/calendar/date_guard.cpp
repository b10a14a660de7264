#include "calendar/date_guard.h"

#include <string>

#include "calendar/date_entry.h"

namespace horavex {

void DateGuard::Bind(ComboBox& day, ComboBox& month, ComboBox& year) {
    held_ = false;
    Watch(guarded_[0], day);
    Watch(guarded_[1], month);
    Watch(guarded_[2], year);
}

void DateGuard::SetDate(int day, int month, int year) {
    held_ = true;
    guarded_[0].combo->SetText(std::to_string(day));
    guarded_[1].combo->SetText(std::to_string(month));
    guarded_[2].combo->SetText(std::to_string(year));
    held_ = false;
}

void DateGuard::Watch(Guarded& guarded, ComboBox& combo) {
    guarded = {&combo, ""};
    combo.onGotFocus = [&guarded] { guarded.lastGood = guarded.combo->Text(); };
    combo.onLostFocus = [this, &guarded] { Check(guarded); };
    combo.onClick = [this, &guarded] { Check(guarded); };
    combo.onChange = [this, &guarded] {
        if (!held_ && !guarded.combo->Text().empty()) {
            Check(guarded);
        }
    };
}

void DateGuard::Check(Guarded& guarded) {
    if (IsDateText(DateText())) {
        guarded.lastGood = guarded.combo->Text();
    } else {
        guarded.combo->SetText(guarded.lastGood);
    }
}

std::string DateGuard::DateText() const {
    return guarded_[0].combo->Text() + "/" + guarded_[1].combo->Text() + "/" +
           guarded_[2].combo->Text();
}

void FillNumbers(ComboBox& combo, int first, int last) {
    for (int number = first; number <= last; ++number) {
        combo.AddItem(std::to_string(number));
    }
}

}  // namespace horavex
