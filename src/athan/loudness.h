#pragma once

#include <cstdint>

#include "base/bytes.h"
#include "platform/audio_file.h"

namespace horavex {

/// How loud a sound plays. Without a word it plays as it is.
struct Loudness {
    int percent = 100;    // 0 to 100 of the sound's own
    int fadeSeconds = 0;  // 0 to 60, in which it rises from silence

    bool operator==(const Loudness&) const = default;
};

/// The gain of one sound, by the position in it: a play that pauses goes on as loud as it was.
class Gain {
public:
    Gain() = default;

    /// Of a sound of that length in bytes. A rise takes half of it at most, so that a short sound
    /// is heard, too.
    Gain(const Loudness& loudness, int sampleRate, SampleFormat format, std::int64_t length);

    /// Makes a block that begins at a position of the sound as loud as it is to be. Where that is
    /// the sound's own loudness, no byte changes.
    void Apply(Bytes& block, std::int64_t position) const;

private:
    double At(std::int64_t moment) const;

    double level_ = 1.0;            // behind the rise
    std::int64_t riseMoments_ = 0;  // of the rise
    std::int64_t momentBytes_ = kSampleBytes;
};

}  // namespace horavex
