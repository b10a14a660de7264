#pragma once

#include <cstdint>
#include <string>

namespace horavex {

/// Flag: the menu stands. It is built once a run; an error on the way leaves it false.
extern std::int16_t languageMenuBuilt;

/// Fills the submenu of languages on frmMain from the folder of the packs: an entry for each pack,
/// with its emblem, the one of that language checked. An error is told in a message box and ends
/// the work where it stands.
void BuildLanguageMenu(const std::string& language);

/// The user has chosen mnuL(index): its caption is the language from now on. Throws BoundsFault
/// for an index without an item.
void mnuL_Click(int index);

/// Binds the items of mnuL, those that are still to come included.
void BindLanguageMenu();

}  // namespace horavex
