#pragma once

#include <pulse/sample.h>

#include "platform/audio_file.h"

namespace horavex {

/// The server's form of a rate and a format. The format's channels count up to PA_CHANNELS_MAX.
pa_sample_spec SpecOf(int sampleRate, SampleFormat format);

/// True for what the server can play at all. A second of it
/// takes less than 25 million bytes.
bool IsPlayable(int sampleRate, SampleFormat format);

}  // namespace horavex
