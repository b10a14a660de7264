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

/// Opens the vendor's root page, or tells how the machine is connected where it is not online.
void mnuPopVisitWebSite_Click();

/// Binds the menu entries.
void BindMenus();

}  // namespace horavex
