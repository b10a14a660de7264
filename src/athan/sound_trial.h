#pragma once

#include "athan/athan_choices.h"

namespace horavex {

// What the window "Athan and Reminders" plays, on the device that is chosen in it, and what it says
// of that.

/// Plays the sound of a prayer as it will be heard; stops it where it is the one that plays.
void ListenTo(Prayer prayer, const AthanChoices& choices);

/// Plays the short tone at the volume over all.
void TestTone(const AthanChoices& choices);

/// Says so where what is tried turns out not to be heard, because it is muted for one. At every
/// tick.
void WatchTrial();

/// Stops what plays.
void StopTrial();

/// Stops what is tried and leaves an athan alone. The stored device counts again.
void EndTrial();

/// Has a try that finds no device say so.
void BindSoundTrial();

}  // namespace horavex
