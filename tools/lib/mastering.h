#pragma once

#include "lib/waves.h"

namespace horavex {

/// How loud every built-in sound is, in LUFS.
inline constexpr double kWantedLoudness = -18.0;

/// What peaks may reach before the coding adds its own to them, in dB of full scale.
inline constexpr double kHighestPeak = -1.5;

/// Below this length, in seconds, a sound is too short for the meter's gates.
inline constexpr double kShortest = 3.0;

/// The sound cut to a length in seconds, between two silences, faded at both ends and as loud as
/// wanted. Throws BoundsFault for silence and for what would peak too high.
StereoSound Master(StereoSound sound, double length, double fadeOut);

}  // namespace horavex
