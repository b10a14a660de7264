#pragma once

#include <string>

#include "athan/loudness.h"

namespace horavex {

/// What all sound buttons share.

/// The real path of a file of the program folder.
std::string FullPath(const std::string& relativePath);

/// Plays a file by its real path. While a sound pauses this resumes it instead, whatever the path.
void PlayFile(const std::string& path);

/// The same in a loudness, which a sound that is resumed keeps as it was.
void PlayFileAt(const std::string& path, const Loudness& loudness);

void StopSound();

/// Pauses the sound, or resumes it.
void PauseSound();

/// The working copy of the sound of Fajr, or of the other prayers.
std::string ProgramAthanPath(bool isFajr);

/// Plays the sound of Zuhr, Asr, Maghrib and Isha.
void Athan_Sound_Click();

/// Plays the sound of Fajr.
void Fagr_Athan_Sound_Click();

/// Puts the two sounds that are played right at the start of the program: one that is missing is
/// copied from its first built-in sound. Then offers "Sound" in the settings window if the sound
/// of Fajr is there, and hides it otherwise. A copy that fails is passed over in silence.
void CheckAthanFiles();

}  // namespace horavex
