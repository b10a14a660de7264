#pragma once

#include "base/prayers.h"

namespace horavex {

/// Plays what the user has chosen for a prayer, as loud as chosen, on the chosen device. A file of
/// the user's that is gone gives way to the program's own sound. "Athan Now" has that one too.
void PlayPrayerSound(Alert alert);

/// Plays the short tone, unless something else plays or an athan is about to. False if it does not.
bool PlayTone();

/// Stops the tone, and nothing else.
void StopTone();

/// Whether a sound is on its way to the ears: it plays, does not pause, and has a device.
bool IsHeard();

}  // namespace horavex
