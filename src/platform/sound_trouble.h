#pragma once

namespace horavex {

/// What AudioPlayer::Trouble says, in English; a language pack may have a text of its own for each.
namespace sound_trouble {

inline constexpr const char* kNoServer = "no sound server can be reached";
inline constexpr const char* kNoDevice = "there is no output device";
inline constexpr const char* kMutedDevice = "the output device is muted";
inline constexpr const char* kMutedProgram = "the mixer mutes this program";
inline constexpr const char* kFormat = "no device plays a sound of this format";

}  // namespace sound_trouble

}  // namespace horavex
