#include "lib/instruments.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace horavex {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

/// From 0 at 0 to 1 at the length, and 1 behind it, without a corner.
double Swell(double at, double length) {
    return at >= length ? 1.0 : 0.5 - 0.5 * std::cos(std::numbers::pi * std::max(at, 0.0) / length);
}

Sound Silence(double seconds) {
    return Sound(static_cast<std::size_t>(std::ceil(seconds * kPlayedRate)), 0.0);
}

double TimeOf(std::size_t moment) {
    return static_cast<double>(moment) / kPlayedRate;
}

// One sine among those that make up a struck or plucked tone.
struct Partial {
    double ratio;     // to the pitch
    double strength;  // at the beginning
    double decay;     // 1/s
};

/// Partials that die away by themselves, whatever the length of the note.
Sound PlayPartials(const std::vector<Partial>& partials, double pitch, double attack, double ring) {
    constexpr double kDamping = 0.4;  // seconds at the end of the ring
    Sound sound = Silence(ring);
    for (const Partial& partial : partials) {
        for (std::size_t i = 0; i < sound.size(); ++i) {
            const double t = TimeOf(i);
            sound[i] += partial.strength * std::exp(-partial.decay * t) *
                        std::sin(kTurn * pitch * partial.ratio * t);
        }
    }
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] *= Swell(TimeOf(i), attack) * Swell(ring - TimeOf(i), kDamping);
    }
    return sound;
}

/// A gut string that is plucked at a fifth of its length: overtones that have a node there are
/// weak, high ones die first, and its stiffness makes them a little sharp.
Sound PlayPluck(const Note& note) {
    constexpr int kOvertones = 12;
    constexpr double kPlace = 0.21;
    constexpr double kStiffness = 0.0002;
    constexpr double kLoudness = 0.45;
    std::vector<Partial> partials;
    for (int n = 1; n <= kOvertones; ++n) {
        partials.push_back({n * std::sqrt(1.0 + kStiffness * n * n),
                            kLoudness * std::abs(std::sin(std::numbers::pi * n * kPlace)) / n,
                            0.9 + 0.55 * n});
    }
    return PlayPartials(partials, note.pitch, 0.006, 4.0);
}

/// A small bell: hum, prime, tierce, quint, nominal and what lies above.
Sound PlayBell(const Note& note) {
    return PlayPartials({{0.5, 0.10, 0.5},
                         {1.0, 0.30, 0.7},
                         {1.19, 0.08, 1.0},
                         {1.5, 0.06, 1.2},
                         {2.0, 0.18, 1.3},
                         {2.74, 0.05, 2.0},
                         {3.01, 0.04, 2.6},
                         {4.07, 0.02, 3.6}},
                        note.pitch, 0.008, 6.0);
}

/// A reed flute: few overtones, some breath, and a vibrato that comes in late.
Sound PlayFlute(const Note& note) {
    constexpr double kAttack = 0.14;   // seconds
    constexpr double kRelease = 0.30;  // seconds, behind the length
    constexpr double kOvertones[] = {0.34, 0.13, 0.07, 0.025, 0.012};
    constexpr double kBreath = 0.05;
    constexpr double kVibrato = 5.1;    // hertz
    constexpr double kDepth = 0.0042;   // of the pitch, some seven cents
    constexpr double kVibratoIn = 0.9;  // seconds from none to all of it
    Sound sound = Silence(note.length + kRelease);
    std::minstd_rand random;
    double breath = 0.0;
    double turns = 0.0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = TimeOf(i);
        const double vibrato = std::sin(kTurn * kVibrato * t) * Swell(t - 0.25, kVibratoIn);
        turns += note.pitch * (1.0 + kDepth * vibrato) / kPlayedRate;
        const double noise = 2.0 * static_cast<double>(random()) / std::minstd_rand::max() - 1.0;
        breath += 0.08 * (noise - breath);  // without its hiss
        double value = kBreath * breath;
        double overtone = 0.0;
        for (const double strength : kOvertones) {
            value += strength * std::sin(kTurn * turns * ++overtone);
        }
        sound[i] = value * (1.0 + 0.06 * vibrato) * Swell(t, kAttack) *
                   Swell(note.length + kRelease - t, kRelease + 0.05);
    }
    return sound;
}

}  // namespace

Sound PlayNote(Instrument instrument, const Note& note) {
    switch (instrument) {
        case Instrument::kFlute:
            return PlayFlute(note);
        case Instrument::kPluck:
            return PlayPluck(note);
        case Instrument::kBell:
            break;
    }
    return PlayBell(note);
}

Sound PlayScore(const Score& score) {
    Sound all;
    for (const Voice& voice : score) {
        for (const Note& note : voice.notes) {
            const Sound played = PlayNote(voice.instrument, note);
            const auto start = static_cast<std::size_t>(std::llround(note.start * kPlayedRate));
            all.resize(std::max(all.size(), start + played.size()), 0.0);
            for (std::size_t i = 0; i < played.size(); ++i) {
                all[start + i] += voice.loudness * played[i];
            }
        }
    }
    return all;
}

}  // namespace horavex
