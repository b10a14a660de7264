#include "terminal/forms/form_sheets.h"

#include <algorithm>
#include <utility>

#include "terminal/forms/controls_sheet.h"

namespace horavex {

FormSheets::FormSheets(FormSheet::Host host, Timing timing, Maker special)
    : host_(std::move(host)), timing_(std::move(timing)), special_(std::move(special)) {
    InstallFormHost(this);
}

FormSheets::~FormSheets() {
    InstallFormHost(nullptr);
}

std::shared_ptr<FormSheet> FormSheets::Find(const std::string& form) const {
    const auto found = std::find_if(sheets_.begin(), sheets_.end(),
                                    [&](const auto& entry) { return entry.first->Name() == form; });
    return found == sheets_.end() ? nullptr : found->second;
}

void FormSheets::Loaded(Form& form) {
    std::shared_ptr<FormSheet> sheet = special_(form, host_);
    if (sheet == nullptr) {
        sheet = std::make_shared<ControlsSheet>(form, ReadLayout(LayoutFileOf(form.Name())), host_);
    }
    sheets_[&form] = std::move(sheet);
    timing_.begin(form);
}

// The sheet may be at work on the very key that has ended the form, and lives until that is done.
void FormSheets::Unloaded(Form& form) {
    timing_.end(form);
    const auto found = sheets_.find(&form);
    if (found != sheets_.end()) {
        found->second->Retire();
        sheets_.erase(found);
    }
}

void FormSheets::BroughtUp(Form& form) {
    host_.desk.BringUp(sheets_.at(&form));
}

void FormSheets::RunModal(Form& form) {
    const std::shared_ptr<FormSheet> sheet = sheets_.at(&form);
    host_.runWhile([&form, &sheet] { return !sheet->IsEnded() && form.Visible(); });
}

}  // namespace horavex
