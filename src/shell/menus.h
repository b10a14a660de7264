#pragma once

#include "forms/menu_item.h"

namespace horavex {

/// Pops a menu of frmMain up at a place of its inside, in pixels.
void PopUp(const MenuItem& menu, int x, int y);

/// Pops a menu of frmMain up at the pointer.
void PopUpAtPointer(const MenuItem& menu);

/// The one full way out: stores the language, takes the icon away and ends the process at once.
void mnuExit_Click();

/// Turns the face's visibility over; the check mark follows this command only.
void mnuPopShow_Click();

/// Binds the entries that are the shell's own.
void BindMenus();

}  // namespace horavex
