#include "desktop/form_window/form_windows.h"

#include <algorithm>
#include <utility>

#include "desktop/spare_memory.h"
#include "lang/own_digits.h"

namespace horavex {

FormWindows::FormWindows(Layouts layouts) : layouts_(std::move(layouts)) {
    InstallFormHost(this);
    InstallDigitsFollower([this] { ShowTextsAnew(); });
}

FormWindows::~FormWindows() {
    InstallDigitsFollower({});
    InstallFormHost(nullptr);
}

FormWindow* FormWindows::Find(const Form* form) const {
    const auto found = windows_.find(form);
    return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow* FormWindows::Find(const std::string& form) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& entry) { return entry.first->Name() == form; });
    return found == windows_.end() ? nullptr : found->second.get();
}

void FormWindows::Loaded(Form& form) {
    windows_[&form].reset(new FormWindow(form, layouts_.at(form.Name())));
}

void FormWindows::Unloaded(Form& form) {
    windows_.erase(&form);
    ReturnMemorySoon();
}

void FormWindows::BroughtUp(Form& form) {
    windows_.at(&form)->BringUp(Find(form.Owner()));
}

void FormWindows::RunModal(Form& form) {
    windows_.at(&form)->RunUntilHidden();
}

void FormWindows::ShowTextsAnew() const {
    for (const auto& [form, window] : windows_) {
        window->ShowTextsAnew();
    }
}

}  // namespace horavex
