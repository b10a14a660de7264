#pragma once

namespace horavex {

/// Brings the settings window up.
void ShowSettingsWindow();

/// The set button: calculates with the working settings and, if that succeeds, accepts and
/// stores them. The working settings and the Isha angle are stored in either case. A time zone
/// that is no number from -12 to 12 is refused with a message and nothing is stored.
void SettingsSet_Click();

/// The set button pressed by the program itself.
void SetSettings();

/// Enables what depends on the stored city and on the athan type.
void EnableDependentSettings();

/// Binds the window's own handlers and those of its controls.
void BindSettingsWindow();

}  // namespace horavex
