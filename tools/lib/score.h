#pragma once

#include <string>
#include <vector>

namespace horavex {

enum class Instrument { kFlute, kPluck, kBell };

struct Note {
    double start;   // seconds from the beginning
    double length;  // seconds, more than 0
    double pitch;   // hertz
};

/// What one instrument plays, note behind note.
struct Voice {
    Instrument instrument;
    double loudness;  // more than 0, 1 at most; how the voices of a score stand to each other
    std::vector<Note> notes;
};

using Score = std::vector<Voice>;

/// Reads a score; data/athan/README.md tells how one is written. Throws FileFault, and
/// TypeMismatchFault with the number of the line for what is no score.
Score ReadScore(const std::string& path);

/// When the last note ends, in seconds.
double LengthOf(const Score& score);

}  // namespace horavex
