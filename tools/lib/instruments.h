#pragma once

#include <span>

#include "lib/score.h"
#include "lib/waves.h"

namespace horavex {

/// The sound of notes that one breath or one stroke holds, from the start of the first on, with
/// what rings on behind them. It begins and ends at silence, and the same notes always sound alike.
Sound PlayFlute(std::span<const Note> breath);
Sound PlayChoir(std::span<const Note> breath);
Sound PlayDrone(std::span<const Note> breath);
Sound PlayOud(const Note& note);
Sound PlaySantur(const Note& note);
Sound PlayBell(const Note& note);

/// What an instrument plays, its notes starting anywhere: from the beginning of the first.
Sound PlayNotes(Instrument instrument, std::span<const Note> notes);

/// All voices together, each at its place, as loud as they come.
StereoSound PlayScore(const Score& score);

}  // namespace horavex
