#pragma once

namespace horavex {

/// Puts the two sounds that are played right at the start of the program: one that is missing is
/// copied from its first built-in sound. Then offers "Sound" in the settings window if the sound
/// of Fajr is there, and hides it otherwise. A copy that fails is passed over in silence.
void CheckAthanFiles();

}  // namespace horavex
