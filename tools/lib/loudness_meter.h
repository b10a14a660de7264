#pragma once

#include "lib/waves.h"

namespace horavex {

/// What the meters answer for silence.
inline constexpr double kNoLoudness = -100.0;

/// How loud a sound of kPlayedRate is to the ear, in LUFS, by ITU-R BS.1770-4: both channels
/// K-weighted, blocks of 400 ms that overlap by three quarters, those alone that pass both gates.
/// A sound shorter than a block has none that pass.
double GatedLoudness(const StereoSound& sound);

/// The same over the whole sound at once, for what is too short to be gated.
double UngatedLoudness(const StereoSound& sound);

/// The highest peak between the samples too, in dB of full scale: oversampled four times.
double TruePeak(const StereoSound& sound);

}  // namespace horavex
