// A small bell under a soft hammer: partials that die away by themselves, the high ones first.

#include <cmath>
#include <complex>
#include <numbers>

#include "lib/instruments.h"

namespace horavex {

namespace {

struct Partial {
    double ratio;     // to the pitch
    double strength;  // at the beginning
    double ring;      // seconds until a thousandth
};

// Tuned towards whole ratios, as a hand bell is; what is told twice beats with itself.
constexpr Partial kPartials[] = {{0.5, 0.06, 5.0},  {1.0, 0.30, 4.6},    {1.0012, 0.22, 4.2},
                                 {2.0, 0.17, 3.0},  {2.0021, 0.10, 2.7}, {3.0, 0.085, 1.9},
                                 {4.17, 0.04, 1.2}, {5.43, 0.022, 0.7},  {8.2, 0.010, 0.35}};

/// One partial, by a pointer that turns and shrinks.
void Ring(const Partial& partial, const Note& note, Sound& sound) {
    const double turn = 2.0 * std::numbers::pi * note.pitch * partial.ratio / kPlayedRate;
    const std::complex<double> step =
        std::polar(std::pow(0.001, 1.0 / (partial.ring * kPlayedRate)), turn);
    const double hardness = std::pow(note.strength, 0.5 * (partial.ratio - 1.0));
    std::complex<double> pointer = partial.strength * note.strength * hardness;
    for (double& value : sound) {
        value += pointer.imag();
        pointer = {pointer.real() * step.real() - pointer.imag() * step.imag(),
                   pointer.real() * step.imag() + pointer.imag() * step.real()};
    }
}

}  // namespace

Sound PlayBell(const Note& note) {
    constexpr double kRing = 5.0;      // seconds
    constexpr double kAttack = 0.006;  // seconds
    constexpr double kDamping = 0.8;   // seconds at the end of the ring
    Sound sound = Silence(kRing);
    for (const Partial& partial : kPartials) {
        Ring(partial, note, sound);
    }
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] *= Swell(TimeOf(i), kAttack) * Swell(kRing - TimeOf(i), kDamping);
    }
    return sound;
}

}  // namespace horavex
