#pragma once

#include "forms/menu_item.h"
#include "terminal/sheets/choice_sheet.h"

namespace horavex {

/// Opens a menu, with the menus inside it, and clicks what the user chooses. Returns when the work
/// of the click is done, with the step that the user left it by: -1, 1, or 0.
int RunItemMenu(const MenuItem& menu, const ChoiceSheet::Look& look, FormSheet::Host& host);

/// The menu of a form by its name; nullptr for none.
const MenuItem* FindMenu(const Form& form, const std::string& name);

}  // namespace horavex
