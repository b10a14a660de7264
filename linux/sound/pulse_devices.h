#pragma once

#include <vector>

#include "platform/audio_player.h"

namespace horavex {

/// What the server plays to where there is no output: it is none.
inline constexpr const char* kDummyDevice = "auto_null";

/// The outputs of the user's sound server, in its order. Empty where none answers within a second.
std::vector<SoundDevice> PulseDevices();

}  // namespace horavex
