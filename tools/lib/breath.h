#pragma once

#include <span>

#include "lib/score.h"
#include "lib/waves.h"

namespace horavex {

/// How long a breath sounds on behind its last note, in seconds.
inline constexpr double kRelease = 0.25;

/// What a player of one breath does, moment by moment, from the first note to the end of the
/// release: the notes are bound, each gliding out of the one before it.
struct Breath {
    explicit Breath(std::span<const Note> notes);

    std::size_t Size() const { return pitch.size(); }

    Sound pitch;     // hertz
    Sound strength;  // 0 to 1
    Sound calm;      // 0 to 1: how long ago a long note began, for a vibrato that comes in late
};

/// Parts a voice into breaths: a rest begins a new one.
std::vector<std::span<const Note>> BreathsOf(const std::vector<Note>& notes);

}  // namespace horavex
