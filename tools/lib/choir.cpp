// Voices that hum and open towards "a": overtones under the formants of a vowel.
// And a drone, whose overtones wax and wane by themselves.

#include <array>
#include <cmath>
#include <numbers>

#include "lib/breath.h"
#include "lib/instruments.h"

namespace horavex {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

/// A sum of overtones whose strengths may change on the way without a step.
class Overtones {
public:
    static constexpr std::size_t kCount = 24;
    using Strengths = std::array<double, kCount>;

    void Aim(const Strengths& strengths) { aim_ = strengths; }

    double Next(double pitch) {
        turns_ += pitch / kPlayedRate;
        const double sine = std::sin(kTurn * turns_);
        const double twice = 2.0 * std::cos(kTurn * turns_);
        double before = 0.0, now = sine, sum = 0.0;
        for (std::size_t n = 0; n < kCount; ++n) {
            held_[n] += 0.004 * (aim_[n] - held_[n]);
            sum += held_[n] * now;
            const double next = twice * now - before;
            before = now;
            now = next;
        }
        return sum;
    }

private:
    double turns_ = 0.0;
    Strengths aim_{};
    Strengths held_{};
};

// How often the strengths are worked out anew, in moments.
constexpr std::size_t kLook = 128;

struct Formant {
    double middle;  // hertz
    double width;   // hertz
    double strength;
};

// After the tables of sung vowels (bass) in the manual of Csound.
constexpr Formant kClosed[] = {
    {350.0, 60.0, 1.0}, {600.0, 80.0, 0.30}, {2400.0, 120.0, 0.025}, {2675.0, 150.0, 0.04}};
constexpr Formant kOpen[] = {
    {600.0, 70.0, 1.0}, {1040.0, 90.0, 0.45}, {2250.0, 120.0, 0.16}, {2450.0, 150.0, 0.16}};

/// The vowel between the closed one at 0 and the open one at 1.
double VowelAt(double frequency, double openness) {
    double sum = 0.0;
    for (std::size_t i = 0; i < std::size(kClosed); ++i) {
        const auto mix = [&](double closed, double open) {
            return closed + openness * (open - closed);
        };
        const double middle = mix(kClosed[i].middle, kOpen[i].middle);
        const double width = 1.6 * mix(kClosed[i].width, kOpen[i].width);
        const double away = 2.0 * (frequency - middle) / width;
        sum += mix(kClosed[i].strength, kOpen[i].strength) / std::sqrt(1.0 + away * away);
    }
    return sum;
}

Overtones::Strengths SungStrengths(double pitch, double openness) {
    constexpr double kHighest = 5000.0;  // hertz
    Overtones::Strengths strengths{};
    for (std::size_t n = 0; n < strengths.size(); ++n) {
        const double number = static_cast<double>(n + 1);
        const double frequency = pitch * number;
        if (frequency < kHighest) {
            strengths[n] = (0.02 + VowelAt(frequency, openness)) / std::pow(number, 1.15);
        }
    }
    return strengths;
}

struct Singer {
    double cents;    // beside the pitch
    double vibrato;  // hertz
    double late;     // seconds
};
constexpr Singer kSingers[] = {
    {0.0, 5.0, 0.0}, {-9.0, 4.6, 0.05}, {7.0, 5.4, 0.09}, {3.0, 4.9, 0.13}};

void Sing(const Singer& singer, const Breath& breath, Sound& sound) {
    constexpr double kLoudness = 0.22;
    constexpr double kAttack = 0.28;   // seconds
    constexpr double kDepth = 22.0;    // cents
    constexpr double kMouth = 0.23;    // hertz, at which a mouth opens and closes a little
    constexpr double kOpening = 0.14;  // of the way from the closed vowel to the open one
    const double length = TimeOf(sound.size());
    Noise throat(static_cast<std::uint32_t>(singer.vibrato * 1000.0));
    Softener calm(2.0);
    Overtones overtones;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = TimeOf(i);
        const double vibrato = breath.calm[i] * std::sin(kTurn * singer.vibrato * t);
        const double wander = 60.0 * calm(throat.Next());
        const double pitch = Above(breath.pitch[i], singer.cents + kDepth * vibrato + wander);
        if (i % kLook == 0) {
            const double mouth = std::sin(kTurn * kMouth * t + 10.0 * singer.vibrato);
            overtones.Aim(SungStrengths(pitch, breath.strength[i] + kOpening * mouth));
        }
        sound[i] += kLoudness * breath.strength[i] * overtones.Next(pitch) *
                    Swell(t - singer.late, kAttack) * Swell(length - t, kRelease);
    }
}

/// Each overtone of the drone comes and goes at a pace of its own.
Overtones::Strengths DroneStrengths(double t) {
    constexpr std::size_t kHeard = 10;
    Overtones::Strengths strengths{};
    for (std::size_t n = 0; n < kHeard; ++n) {
        const double number = static_cast<double>(n + 1);
        const double wave = std::sin(kTurn * (0.05 + 0.017 * number) * t + 2.4 * number);
        strengths[n] = (0.6 + 0.4 * wave) / std::pow(number, 1.1);
    }
    return strengths;
}

}  // namespace

Sound PlayChoir(std::span<const Note> notes) {
    const Breath breath(notes);
    Sound sound(breath.Size(), 0.0);
    for (const Singer& singer : kSingers) {
        Sing(singer, breath, sound);
    }
    return sound;
}

Sound PlayDrone(std::span<const Note> notes) {
    constexpr double kLoudness = 0.25;
    constexpr double kBeating = 4.0;  // cents between its two strings
    constexpr double kAttack = 2.0;   // seconds
    constexpr double kEnd = 2.0;      // seconds
    const Breath breath(notes);
    const double length = TimeOf(breath.Size());
    Sound sound(breath.Size(), 0.0);
    Overtones one, other;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = TimeOf(i);
        if (i % kLook == 0) {
            one.Aim(DroneStrengths(t));
            other.Aim(DroneStrengths(t + 7.0));
        }
        const double both =
            one.Next(breath.pitch[i]) + other.Next(Above(breath.pitch[i], kBeating));
        sound[i] =
            kLoudness * breath.strength[i] * both * Swell(t, kAttack) * Swell(length - t, kEnd);
    }
    return sound;
}

}  // namespace horavex
