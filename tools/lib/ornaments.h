#pragma once

#include <vector>

#include "lib/score.h"

namespace horavex {

/// Strokes of the note and of a neighbour by turns, the note first.
std::vector<Note> Trill(const Note& note, double neighbour);

/// A short stroke of another pitch, then the note for what is left of its length.
std::vector<Note> WithGrace(const Note& note, double grace);

/// The note struck again and again, more weakly than at first, every other stroke weaker still.
std::vector<Note> Tremolo(const Note& note);

}  // namespace horavex
