#pragma once

#include <string>
#include <vector>

namespace horavex {

enum class Instrument { kFlute, kOud, kSantur, kBell, kChoir, kDrone };

/// How strongly a note is played where the score says nothing ("mf").
inline constexpr double kUsualStrength = 0.7;

struct Note {
    double start;                      // seconds from the beginning
    double length;                     // seconds, more than 0
    double pitch;                      // hertz
    double from = pitch;               // hertz, where a slide to the pitch begins
    double strength = kUsualStrength;  // more than 0, 1 at most
};

/// What one instrument plays, note behind note.
struct Voice {
    Instrument instrument;
    double loudness;  // more than 0, 1 at most; how the voices of a score stand to each other
    double place;     // -1 left to 1 right
    std::vector<Note> notes;
};

struct Score {
    double tail = 4.0;  // seconds until silence behind the end of the last note
    std::vector<Voice> voices;
};

/// Reads a score; data/athan/README.md tells how one is written. Throws FileFault, and
/// TypeMismatchFault with the number of the line for what is no score.
Score ReadScore(const std::string& path);

/// When the last note ends, in seconds.
double LengthOf(const Score& score);

}  // namespace horavex
