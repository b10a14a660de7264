#include "terminal/sheets/item_menu.h"

#include "forms/form.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr const char* kSeparator = "-";

std::vector<MenuItem*> ShownEntries(const MenuItem& menu) {
    std::vector<MenuItem*> entries = menu.Entries();
    std::erase_if(entries, [](const MenuItem* entry) { return !entry->Visible(); });
    return entries;
}

std::vector<Choice> ChoicesOf(const std::vector<MenuItem*>& entries) {
    std::vector<Choice> choices;
    for (const MenuItem* entry : entries) {
        Choice choice;
        choice.caption = entry->Caption();
        choice.enabled = entry->Enabled();
        choice.checked = entry->Checked();
        choice.opens = !entry->Entries().empty();
        choice.separator = entry->Caption() == kSeparator;
        choices.push_back(std::move(choice));
    }
    return choices;
}

/// A list of languages, for one, opens at the one that is spoken.
int CheckedOne(const std::vector<MenuItem*>& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i]->Checked()) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool RunFromRight(const std::vector<MenuItem*>& entries) {
    return !entries.empty() && RunsFromRight(entries.front()->Caption());
}

/// What is inside opens a little lower and further in.
std::optional<CellPlace> PlaceInside(const std::optional<CellPlace>& place) {
    constexpr int kDown = 2;
    constexpr int kAcross = 6;
    return place ? std::optional(CellPlace{place->row + kDown, place->column + kAcross})
                 : std::nullopt;
}

}  // namespace

int RunItemMenu(const MenuItem& menu, const ChoiceSheet::Look& look, FormSheet::Host& host) {
    const std::vector<MenuItem*> entries = ShownEntries(menu);
    if (entries.empty()) {
        return 0;
    }
    ChoiceSheet::Look own = look;
    own.fromRight = RunFromRight(entries);
    const auto sheet = std::make_shared<ChoiceSheet>(ChoicesOf(entries), CheckedOne(entries), own);
    RunSheet(sheet, host);
    if (sheet->Chosen() < 0) {
        return sheet->Step();
    }
    MenuItem& chosen = *entries[static_cast<std::size_t>(sheet->Chosen())];
    if (!chosen.Entries().empty()) {
        return RunItemMenu(chosen, {PlaceInside(look.place), false, look.sideways}, host);
    }
    chosen.UserClick();
    return 0;
}

const MenuItem* FindMenu(const Form& form, const std::string& name) {
    for (const Control* control : form.Controls()) {
        if (control->Kind() == ControlKind::kMenuItem && control->Name() == name) {
            return static_cast<const MenuItem*>(control);
        }
    }
    return nullptr;
}

}  // namespace horavex
