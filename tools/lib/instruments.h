#pragma once

#include <vector>

#include "lib/score.h"

namespace horavex {

/// Moments a second of all that is played here.
inline constexpr int kPlayedRate = 44100;

/// One channel of sound, full scale at 1.
using Sound = std::vector<double>;

/// The sound of one note from its start on, with what rings on behind its length. It begins and
/// ends at silence, and the same note always sounds alike.
Sound PlayNote(Instrument instrument, const Note& note);

/// All voices together, as loud as they come.
Sound PlayScore(const Score& score);

}  // namespace horavex
