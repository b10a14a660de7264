#pragma once

#include <cstdint>
#include <string>

#include "athan/loudness.h"

namespace horavex {

/// The player of the one sound that can play at a time. It is closed; or open and playing, paused,
/// or stopped at its beginning. It reads a second of the file at a time and keeps two of them
/// queued, so that a long file takes no more memory than a short one.

/// Flag: the sound pauses.
extern std::int16_t Paused;

/// Whether a sound plays, a pause included.
bool IsPlaying();

/// Counts the sounds that were to be played: another number is another sound.
std::uint64_t PlayNumber();

/// Plays the file of that real path from its beginning, in place of what plays. A file that is
/// missing, unreadable, of an unknown format or without audio leaves nothing playing, in silence.
/// The loudness is of this file, however often it is started, and of no other.
void OpenFileForPlay(const std::string& path, const Loudness& loudness = {});

/// Starts the open file, or resumes it.
void StartPlay();

/// Queues the next second. A player that has been stopped meanwhile takes the athan window away.
void FeedAudio();

/// Pauses, or resumes where the pause began. Nothing without a sound that plays. Throws
/// OverflowFault for a pause behind 2,147,483,647 bytes, some three hours into a file.
void PausePlay();

/// Stops and goes back to the beginning; the file stays open.
void StopPlay();

/// Closes the open file.
void CloseFile();

/// Binds the player to the events of the audio port.
void BindPlayer();

}  // namespace horavex
