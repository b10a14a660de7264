#pragma once

#include "config/commit.h"  // what the set button does

namespace horavex {

/// The menu's entry: brings the settings window up with the working values in every control.
void OpenSettings();

/// Brings the settings window up as its controls stand.
void ShowSettingsWindow();

/// Enables what depends on the stored city and on the athan type.
void EnableDependentSettings();

/// Binds the window's own handlers and those of its controls.
void BindSettingsWindow();

}  // namespace horavex
