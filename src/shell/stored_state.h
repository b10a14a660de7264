#pragma once

namespace horavex {

// The accepted state as a start finds it. A record whose language or whose city does not exist is
// damaged: the start mends it in memory, says so, and lets the user set it anew.

/// Reads the accepted settings. False for a language that there is not; they speak the first then.
bool LoadStoredSettings();

/// Looks the accepted place up. False for a city that there is not; it is Mecca then. Throws
/// FileFault where the location files are missing.
bool LookUpStoredPlace();

/// Says that the stored settings are damaged and opens the settings window.
void AskForSettings();

}  // namespace horavex
