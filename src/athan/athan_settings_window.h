#pragma once

#include <string>

namespace horavex {

/// Reads the paths of the user's own sounds from the registry.
void LoadCustomAthanFiles();

/// Path of the user's own sound: 0 for Fajr, 1 for the other prayers; empty for none.
const std::string& CustomAthanFile(std::size_t group);

/// Binds the handlers of frmAthan. A chosen sound is copied over the one that is played; what was
/// chosen is kept in the registry, for this window alone.
void BindAthanSettingsWindow();

}  // namespace horavex
