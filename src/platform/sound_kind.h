#pragma once

namespace horavex {

/// What tells the format of a sound file.
enum class SoundKind {
    kByContent,  // the file itself, whatever its name
    kByEnding,   // its name's ending alone, as of VOX and GSM: a copy under another name is silent
    kBareSamples,  // nothing: samples without a header, of a rate that only their maker knows
    kUnknown,      // it is missing, unreadable or no sound
};

}  // namespace horavex
