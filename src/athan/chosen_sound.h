#pragma once

#include <string>

#include "athan/athan_choices.h"
#include "athan/loudness.h"

namespace horavex {

/// The short tone of reminders, and of whoever tries whether sound works.
inline constexpr const char* kShortTone = "Athan\\tone.mp3";

/// The real path of what sounds with these choices, which are not those of no sound. A file of the
/// user's that is gone gives way to the program's own sound, that of Fajr or of the others.
std::string PathOfSound(const PrayerChoices& choices, bool isFajr);

/// Of a prayer's volume and that over all together.
Loudness LoudnessOf(const PrayerChoices& choices, int volumeOverAll, int fadeSeconds);

}  // namespace horavex
