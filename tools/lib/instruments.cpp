#include "lib/instruments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "lib/breath.h"

namespace horavex {

namespace {

bool IsBlown(Instrument instrument) {
    return instrument == Instrument::kFlute || instrument == Instrument::kChoir ||
           instrument == Instrument::kDrone;
}

/// What is played at once: breaths of what is blown, strokes of what is struck.
std::vector<std::span<const Note>> PartsOf(const Voice& voice) {
    if (IsBlown(voice.instrument)) {
        return BreathsOf(voice.notes);
    }
    std::vector<std::span<const Note>> strokes;
    for (const Note& note : voice.notes) {
        strokes.emplace_back(&note, 1);
    }
    return strokes;
}

void Add(Sound& all, const Sound& part, std::size_t start, double gain) {
    all.resize(std::max(all.size(), start + part.size()), 0.0);
    for (std::size_t i = 0; i < part.size(); ++i) {
        all[start + i] += gain * part[i];
    }
}

/// Hands are no clocks: a stroke comes some milliseconds late.
double Lateness(const Voice& voice, Noise& hand) {
    constexpr double kLatest = 0.012;  // seconds
    return IsBlown(voice.instrument) ? 0.0 : kLatest * (0.5 + 0.5 * hand.Next());
}

/// Equally loud at every place.
void PlayVoice(const Voice& voice, StereoSound& all) {
    const double angle = (voice.place + 1.0) * std::numbers::pi / 4.0;
    const double gain = voice.loudness * std::numbers::sqrt2;
    Noise hand(7);
    for (const std::span<const Note> part : PartsOf(voice)) {
        const std::size_t start = MomentsIn(part.front().start + Lateness(voice, hand));
        const Sound played = PlayNotes(voice.instrument, part);
        Add(all.left, played, start, gain * std::cos(angle));
        Add(all.right, played, start, gain * std::sin(angle));
    }
}

}  // namespace

Sound PlayNotes(Instrument instrument, std::span<const Note> notes) {
    switch (instrument) {
        case Instrument::kFlute:
            return PlayFlute(notes);
        case Instrument::kChoir:
            return PlayChoir(notes);
        case Instrument::kDrone:
            return PlayDrone(notes);
        case Instrument::kOud:
            return PlayOud(notes.front());
        case Instrument::kSantur:
            return PlaySantur(notes.front());
        case Instrument::kBell:
            break;
    }
    return PlayBell(notes.front());
}

StereoSound PlayScore(const Score& score) {
    StereoSound all;
    for (const Voice& voice : score.voices) {
        PlayVoice(voice, all);
    }
    return all;
}

}  // namespace horavex
