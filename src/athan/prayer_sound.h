#pragma once

#include <functional>

#include "base/prayers.h"

namespace horavex {

/// Plays what the user has chosen for a prayer, as loud as chosen, on the chosen device. A file of
/// the user's that is gone or cannot be played gives way to the program's own sound. "Athan Now"
/// has that one too.
void PlayPrayerSound(Alert alert);

/// The sound that plays is too short to take the athan along with its end.
bool EndsBeforeItsAthan();

/// Plays the short tone, unless something else plays or an athan is about to: then, and where it
/// turns out that it cannot be heard, unheard is called instead.
void PlayTone(std::function<void()> unheard);

/// Notices that a tone cannot be heard. Called by the clock.
void WatchTone();

/// Stops the tone, and nothing else.
void StopTone();

/// What is played from now on comes out of the device of the user's choice.
void UseChosenDevice();

/// Whether a sound is on its way to the ears: it plays, does not pause, and has a device.
bool IsHeard();

}  // namespace horavex
