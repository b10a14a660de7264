#pragma once

#include <cstdint>

namespace horavex {

/// A prayer (0, 2 to 5), the daily alarm (7) or "Athan Now" (-1) has arrived; 1 is ignored, since
/// sunrise has no athan. Both wait with the event loop running. An athan brings its window up and
/// is heard two seconds later, where the settings ask for sound; whatever the user has done to the
/// window meanwhile. The alarm stands until the user closes it, 310 seconds at most.
void sub04F9(std::int16_t index);

/// True in the two seconds between an athan's window and its sound. An alarm would hold the sound
/// back until it is over; its own ten seconds outlast them.
bool AthanAwaitsItsSound();

}  // namespace horavex
