#pragma once

namespace horavex {

/// Keeps the entry with which the user's session starts the program.
void AddStartupShortcut();

/// Deletes the entry if it is there; a failure is told in a message and passed over.
void RemoveStartupShortcut();

/// Does what the box says and stores it.
void chkAddToStartup_Click();

/// Takes the stored wish at the start of the program, in two steps: the box follows the stored
/// value, which counts as 1 where none is stored; then a stored 1 writes the entry.
void LoadStartupWish();

/// Once all stored values are read, a ticked box writes the entry again: an entry that a user
/// removed by hand comes back, and a first run makes it.
void KeepStartupEntry();

}  // namespace horavex
