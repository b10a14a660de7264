#include "lib/breath.h"

#include <algorithm>
#include <cmath>

namespace horavex {

namespace {

constexpr double kBinding = 0.07;   // seconds of the glide between two notes
constexpr double kSlide = 0.45;     // part of a note that a slide takes
constexpr double kSwelling = 0.25;  // seconds from one strength to the next

double Between(double from, double to, double part) {
    return from + (to - from) * part;
}

/// Along the ear's scale of pitches.
double GlideAt(double from, double to, double part) {
    return from * std::pow(to / from, part);
}

/// At an age of the note: out of the pitch before it, and by its slide where it has one.
double PitchAt(const Note& note, double former, double age) {
    const double binding = Swell(age, std::min(kBinding, note.length / 2.0));
    const double slide = Swell(age, kSlide * note.length);
    return GlideAt(GlideAt(former, note.from, binding), note.pitch,
                   note.from == note.pitch ? 0.0 : slide);
}

double CalmAt(const Note& note, double age) {
    constexpr double kLong = 0.5;      // seconds; shorter notes go straight
    constexpr double kPatience = 0.3;  // seconds
    constexpr double kComing = 0.8;    // seconds from none to all of it
    return note.length < kLong ? 0.0 : Swell(age - kPatience, kComing);
}

}  // namespace

Breath::Breath(std::span<const Note> notes) {
    const double start = notes.front().start;
    double formerPitch = notes.front().from;
    double formerStrength = notes.front().strength;
    for (const Note& note : notes) {
        const bool last = &note == &notes.back();
        const std::size_t end =
            MomentsIn(note.start + note.length - start + (last ? kRelease : 0.0));
        while (Size() < end) {
            const double age = TimeOf(Size()) - (note.start - start);
            pitch.push_back(PitchAt(note, formerPitch, age));
            strength.push_back(Between(formerStrength, note.strength, Swell(age, kSwelling)));
            calm.push_back(CalmAt(note, age));
        }
        formerPitch = note.pitch;
        formerStrength = note.strength;
    }
    Softener soft(4.0);
    std::transform(calm.begin(), calm.end(), calm.begin(), soft);
}

std::vector<std::span<const Note>> BreathsOf(const std::vector<Note>& notes) {
    constexpr double kRest = 0.01;  // seconds
    std::vector<std::span<const Note>> breaths;
    std::size_t first = 0;
    for (std::size_t i = 1; i <= notes.size(); ++i) {
        if (i == notes.size() ||
            notes[i].start - notes[i - 1].start - notes[i - 1].length > kRest) {
            breaths.emplace_back(notes.data() + first, i - first);
            first = i;
        }
    }
    return breaths;
}

}  // namespace horavex
