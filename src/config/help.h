#pragma once

#include <string>

#include "forms/form.h"

namespace horavex {

/// Context numbers that buttons and menus ask for.
inline constexpr int kHelpIndex = 9999;
inline constexpr int kHelpSettings = 10009;
inline constexpr int kHelpQibla = 10019;
inline constexpr int kHelpDateConversion = 10099;

/// Takes the owner of all help calls and works the path of the help file out from the program's
/// folder. Once, at the load of HoravexMainForm.
void InitHelp(const std::string& windowHandle, std::string folder);

/// Opens the help at a context number, or at the first page for an unknown one, in the language of
/// the pack; a page that is missing there is the English one. Throws FileFault where the help file
/// names no page, and where it or a page is missing.
void ShowHelpContext(int contextNumber);

/// Closes the help window, if it is open.
void CloseHelp();

/// The help key on a form: its own context number, or else the one that the help file knows for
/// it.
void ShowHelpOf(const Form& form);

/// Binds the help key, the help entries of the menus and the help buttons of the windows.
void BindHelp();

}  // namespace horavex
