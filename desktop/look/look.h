#pragma once

#include "desktop/look/roles.h"

namespace horavex::look {

/// Gives the windows of the application their measures and signs. Before the first of them.
void PutOn();

/// Dresses all windows, those that are open too, in a theme.
void Use(Theme theme);

/// What stands for a theme in the command line of a tool: "light", "dark", "contrast" or
/// "light-contrast". Light for anything else.
Theme ThemeNamed(const QString& name);

/// The theme that the windows have on, their own or the desktop's.
Theme CurrentTheme();

/// Whether they have one of the two of black and white on.
bool WantsContrast();

/// Whether anything may move that only pleases the eye.
void AllowMotion(bool allowed);
bool MotionIsAllowed();

}  // namespace horavex::look
