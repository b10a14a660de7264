#pragma once

#include "base/prayers.h"

namespace horavex {

/// A prayer, the daily alarm or "Athan Now" has arrived; sunrise, which has no athan, is ignored.
/// Athan and alarm wait with the event loop running. An athan brings its window up and
/// is heard two seconds later, where the settings ask for sound; whatever the user has done to the
/// window meanwhile. The alarm stands until the user closes it, 310 seconds at most.
void sub04F9(Alert alert);

/// True in the two seconds between an athan's window and its sound. An alarm would hold the sound
/// back until it is over; its own ten seconds outlast them.
bool AthanAwaitsItsSound();

}  // namespace horavex
