#include "lib/ornaments.h"

#include <algorithm>
#include <cmath>

namespace horavex {

namespace {

/// The note in strokes of about a length, as many as fill it, an odd number of them.
std::vector<Note> InStrokes(const Note& note, double about) {
    const int pairs = static_cast<int>(std::lround((note.length / about - 1.0) / 2.0));
    const int count = 2 * std::max(pairs, 1) + 1;
    std::vector<Note> strokes;
    for (int i = 0; i < count; ++i) {
        const double length = note.length / count;
        strokes.push_back({note.start + i * length, length, note.pitch, note.pitch, note.strength});
    }
    return strokes;
}

}  // namespace

std::vector<Note> Trill(const Note& note, double neighbour) {
    constexpr double kStroke = 0.085;  // seconds
    std::vector<Note> strokes = InStrokes(note, kStroke);
    for (std::size_t i = 1; i < strokes.size(); i += 2) {
        strokes[i].pitch = strokes[i].from = neighbour;
    }
    return strokes;
}

std::vector<Note> WithGrace(const Note& note, double grace) {
    constexpr double kLongest = 0.085;  // seconds
    const double length = std::min(kLongest, note.length / 3.0);
    Note rest = note;
    rest.start += length;
    rest.length -= length;
    return {{note.start, length, grace, grace, 0.85 * note.strength}, rest};
}

std::vector<Note> Tremolo(const Note& note) {
    constexpr double kStroke = 0.095;  // seconds
    std::vector<Note> strokes = InStrokes(note, kStroke);
    for (std::size_t i = 1; i < strokes.size(); ++i) {
        strokes[i].strength *= i % 2 == 0 ? 0.5 : 0.38;
    }
    return strokes;
}

}  // namespace horavex
