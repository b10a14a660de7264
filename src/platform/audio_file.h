#pragma once

#include <cstdint>
#include <string>

#include "base/bytes.h"

namespace horavex {

/// Bytes of a sample, and the one mode in which blocks are handed out, whatever the file holds:
/// signed integers of 16 bits in the machine's byte order.
inline constexpr int kSampleBytes = 2;

/// How samples lie in a block: those of one moment side by side.
struct SampleFormat {
    int channels;  // 1 or more

    /// Bytes that one moment takes.
    int MomentBytes() const { return channels * kSampleBytes; }

    bool operator==(const SampleFormat&) const = default;
};

/// A reader of sound files, of one at a time. What a file is, its content tells and not its name.
/// Failures are answers: nothing throws.
class AudioFile {
public:
    virtual ~AudioFile() = default;

    /// How blocks are handed out from now on; kSampleBytes.
    virtual void SetMode(int mode) = 0;

    /// Opens a file by its real path, in place of the one that is open. 0 for success, any other
    /// number for a file that is missing, unreadable or of an unknown format.
    virtual int Open(const std::string& path) = 0;

    /// Closes the file; nothing without one.
    virtual void Close() = 0;

    // Of the open file; 0, false or nothing without one.

    /// False for a file that is well formed and silent by having no sample.
    virtual bool HasAudio() = 0;

    /// Moments a second.
    virtual int SampleRate() = 0;
    virtual SampleFormat Format() = 0;

    /// The next samples, at most that many bytes; fewer at the end of the file and none behind it.
    virtual Bytes Read(std::int32_t bytes) = 0;

    /// Goes to a position, in bytes of samples from the beginning, and tells the one reached: the
    /// last whole moment at or before it.
    virtual std::int64_t Seek(std::int64_t position) = 0;
};

/// What tells the format of a sound file.
enum class SoundKind {
    kByContent,  // the file itself, whatever its name
    kByEnding,   // its name's ending alone, as of VOX and GSM: a copy under another name is silent
    kBareSamples,  // nothing: samples without a header, of a rate that only their maker knows
    kUnknown,      // it is missing, unreadable or no sound
};

}  // namespace horavex
