#pragma once

#include "linux/sound/pulse_player.h"

namespace horavex {

/// A short tone on the sound server: the bell of a display is mute on most desktops.
class Beep {
public:
    /// fallback is called where no sound server can be reached.
    Beep(PulsePlayer::Post post, std::function<void()> fallback);

    /// Returns at once.
    void Sound();

private:
    PulsePlayer player_;
};

}  // namespace horavex
