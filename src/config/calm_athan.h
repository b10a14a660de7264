#pragma once

namespace horavex {

// What a first run proposes for the athan: a prayer is called once, a window without a sound closes
// by itself, and the daily alarm is off. Whoever had settings before is asked nothing.

/// Minutes after which such a window closes.
inline constexpr int kCalmMinutes = 10;

/// Shows the wizard's box, ticked, on a first run; hides it otherwise.
void OfferCalmAthan();

/// Stores what the box says, where it was offered and the settings have been accepted.
void SaveCalmAthan();

}  // namespace horavex
