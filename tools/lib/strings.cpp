// Strings: waves that run to and fro and lose their brightness at the bridge, over the resonances
// of a body. After K. Karplus and A. Strong, "Digital synthesis of plucked-string and drum
// timbres", 1983, and D. Jaffe and J. O. Smith, "Extensions of the Karplus-Strong plucked-string
// algorithm", 1983.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "lib/instruments.h"

namespace horavex {

namespace {

struct Resonance {
    double middle;  // hertz
    double width;   // hertz
    double strength;
};

struct StringKind {
    double loudness;
    double place;                // where it is struck, part of its length
    double softness;             // of the plectrum or hammer: corner in overtones
    double dullness;             // 0 to 0.5: what the bridge takes of the brightness at each turn
    double ring;                 // seconds until a thousandth, of a string of 200 Hz
    double attack;               // seconds; felt on a hammer makes it longer
    double tick;                 // of the plectrum itself
    std::vector<double> course;  // cents of the strings that are struck together
    std::vector<Resonance> body;
};

const StringKind& Oud() {
    static const StringKind kind = {
        .loudness = 0.75,
        .place = 0.17,
        .softness = 7.0,
        .dullness = 0.42,
        .ring = 3.2,
        .attack = 0.0015,
        .tick = 0.10,
        .course = {-1.5, 1.5},
        .body = {{102.0, 40.0, 0.9}, {196.0, 60.0, 0.8}, {290.0, 90.0, 0.5}, {410.0, 120.0, 0.35}}};
    return kind;
}

const StringKind& Santur() {
    static const StringKind kind = {
        .loudness = 0.5,
        .place = 0.2,
        .softness = 6.5,
        .dullness = 0.12,
        .ring = 6.0,
        .attack = 0.007,
        .tick = 0.04,
        .course = {-2.5, 0.3, 2.8},
        .body = {{260.0, 120.0, 0.4}, {520.0, 220.0, 0.35}, {1400.0, 700.0, 0.2}}};
    return kind;
}

/// A delay line whose length may lie between the moments (Lagrange's interpolation of third order)
/// and may change while it sounds.
class DelayLine {
public:
    explicit DelayLine(std::size_t longest) : line_(longest + 4, 0.0) {}

    void Write(double value) {
        at_ = (at_ + 1) % line_.size();
        line_[at_] = value;
    }

    /// What was written so many moments ago; 0 is the last.
    double Read(double ago) const {
        const auto whole = static_cast<std::size_t>(ago) - 1;
        const double d =
            ago - static_cast<double>(whole);  // 1 to 2, where the formula is smoothest
        return -(d - 1.0) * (d - 2.0) * (d - 3.0) / 6.0 * Back(whole) +
               d * (d - 2.0) * (d - 3.0) / 2.0 * Back(whole + 1) -
               d * (d - 1.0) * (d - 3.0) / 2.0 * Back(whole + 2) +
               d * (d - 1.0) * (d - 2.0) / 6.0 * Back(whole + 3);
    }

private:
    double Back(std::size_t ago) const { return line_[(at_ + line_.size() - ago) % line_.size()]; }

    std::vector<double> line_;
    std::size_t at_ = 0;
};

/// The string as the plectrum leaves it: one slope before the place and one behind it, rounded.
Sound Displaced(const StringKind& kind, double pitch, double strength) {
    const auto period = static_cast<std::size_t>(kPlayedRate / pitch);
    const auto place = static_cast<std::size_t>(kind.place * static_cast<double>(period)) + 1;
    Softener soft(kind.softness * pitch * (0.35 + 0.65 * strength));
    Softener softer(2.0 * kind.softness * pitch * (0.35 + 0.65 * strength));
    const double slope = static_cast<double>(place) / static_cast<double>(period - place);
    Sound shape;
    for (std::size_t i = 0; i < 2 * period; ++i) {  // the second time round it has settled
        shape.push_back(softer(soft(i % period < place ? 1.0 : -slope)));
    }
    return Sound(shape.begin() + static_cast<std::ptrdiff_t>(period), shape.end());
}

/// How long the string of the note is at a moment, in moments of its wave: the finger slides.
double PeriodAt(const Note& note, double t) {
    if (note.from == note.pitch) {
        return kPlayedRate / note.pitch;
    }
    const double glide = Swell(t - 0.08, 0.4 * note.length);
    return kPlayedRate / (note.from * std::pow(note.pitch / note.from, glide));
}

/// Adds one string of the course.
void Pluck(const StringKind& kind, const Note& note, double cents, Sound& sound) {
    const double lowest = std::min(note.from, note.pitch);
    DelayLine line(static_cast<std::size_t>(kPlayedRate / lowest * 1.1) + 8);
    const double ring = kind.ring * std::pow(200.0 / lowest, 0.6);
    const double loss = std::pow(0.001, 1.0 / (lowest * ring));
    const double beside = 1.0 / Above(1.0, cents);
    const Sound shape = Displaced(kind, note.from, note.strength);
    double former = 0.0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double back = line.Read(beside * PeriodAt(note, TimeOf(i)) - 1.0 - kind.dullness);
        const double bridge = loss * ((1.0 - kind.dullness) * back + kind.dullness * former);
        former = back;
        const double value = bridge + (i < shape.size() ? shape[i] : 0.0);
        line.Write(value);
        sound[i] += value / static_cast<double>(kind.course.size());
    }
}

void AddTick(const StringKind& kind, const Note& note, Sound& sound) {
    constexpr double kLength = 0.012;  // seconds
    Noise noise(static_cast<std::uint32_t>(note.pitch));
    Resonator wood(1100.0, 900.0);
    for (std::size_t i = 0; i < std::min(MomentsIn(kLength), sound.size()); ++i) {
        sound[i] += kind.tick * wood(noise.Next()) * (1.0 - Swell(TimeOf(i), kLength));
    }
}

Sound OverBody(const StringKind& kind, const Sound& string) {
    Sound sound = string;
    for (const Resonance& resonance : kind.body) {
        Resonator resonator(resonance.middle, resonance.width);
        for (std::size_t i = 0; i < sound.size(); ++i) {
            sound[i] += resonance.strength * resonator(string[i]);
        }
    }
    return sound;
}

Sound PlayString(const StringKind& kind, const Note& note) {
    constexpr double kDamping = 0.35;  // seconds at the end of what rings
    constexpr double kLongest = 4.5;   // seconds
    const double ring = std::min(kLongest, note.length + 2.2);
    Sound string = Silence(ring);
    for (const double cents : kind.course) {
        Pluck(kind, note, cents, string);
    }
    AddTick(kind, note, string);
    Sound sound = OverBody(kind, string);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = TimeOf(i);
        sound[i] *=
            kind.loudness * note.strength * Swell(t, kind.attack) * Swell(ring - t, kDamping);
    }
    return sound;
}

}  // namespace

Sound PlayOud(const Note& note) {
    return PlayString(Oud(), note);
}

Sound PlaySantur(const Note& note) {
    return PlayString(Santur(), note);
}

}  // namespace horavex
