#include "lib/instruments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "lib/room.h"

namespace horavex {
namespace {

constexpr Instrument kAll[] = {Instrument::kFlute, Instrument::kPluck, Instrument::kBell};

double PeakOf(const Sound& sound) {
    return std::abs(*std::max_element(
        sound.begin(), sound.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }));
}

/// How much of a pitch is in a sound.
double StrengthOf(const Sound& sound, double pitch) {
    double sine = 0.0;
    double cosine = 0.0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double angle = 2.0 * std::numbers::pi * pitch * static_cast<double>(i) / kPlayedRate;
        sine += sound[i] * std::sin(angle);
        cosine += sound[i] * std::cos(angle);
    }
    return std::hypot(sine, cosine) / static_cast<double>(sound.size());
}

TEST(Instruments, NotesBeginAndEndAtSilence) {
    for (const Instrument instrument : kAll) {
        const Sound sound = PlayNote(instrument, {0.0, 1.0, 220.0});
        EXPECT_GT(sound.size(), static_cast<std::size_t>(kPlayedRate));
        EXPECT_LT(std::abs(sound.front()), 0.001);
        EXPECT_LT(std::abs(sound.back()), 0.001);
        EXPECT_GT(PeakOf(sound), 0.2);
        EXPECT_LE(PeakOf(sound), 1.0);
    }
}

TEST(Instruments, NotesHaveTheirPitch) {
    for (const Instrument instrument : kAll) {
        const Sound sound = PlayNote(instrument, {0.0, 2.0, 220.0});
        const double wanted = StrengthOf(sound, 220.0);
        EXPECT_GT(wanted, 5.0 * StrengthOf(sound, 235.0));
        EXPECT_GT(wanted, 5.0 * StrengthOf(sound, 206.0));
    }
}

TEST(Instruments, SameNoteAlwaysSoundsAlike) {
    for (const Instrument instrument : kAll) {
        EXPECT_EQ(PlayNote(instrument, {0.0, 0.5, 300.0}), PlayNote(instrument, {2.0, 0.5, 300.0}));
    }
}

TEST(Instruments, VoicesAddUpWhereTheirNotesStart) {
    const Note late{1.0, 0.5, 220.0};
    const Sound alone = PlayNote(Instrument::kPluck, late);
    const Sound sound = PlayScore({{Instrument::kPluck, 0.5, {late}}});
    ASSERT_EQ(sound.size(), alone.size() + kPlayedRate);
    EXPECT_EQ(sound[kPlayedRate / 2], 0.0);
    EXPECT_EQ(sound[kPlayedRate + 1000], 0.5 * alone[1000]);
}

TEST(Room, SoundIsScaledFadedAndLonger) {
    const Sound dry = PlayNote(Instrument::kBell, {0.0, 1.0, 440.0});
    const StereoSound sound = PlayInRoom(dry);
    EXPECT_EQ(sound.left.size(), sound.right.size());
    EXPECT_GT(sound.left.size(), dry.size() + 2 * kPlayedRate);
    const double peak = std::max(PeakOf(sound.left), PeakOf(sound.right));
    EXPECT_LE(peak, kLoudest);
    EXPECT_GT(peak, 0.5 * kLoudest);
    EXPECT_EQ(sound.left.front(), 0.0);
    EXPECT_EQ(sound.left.back(), 0.0);
    EXPECT_NE(sound.left, sound.right);
}

TEST(Room, SilenceStaysSilent) {
    const StereoSound sound = PlayInRoom(Sound(1000, 0.0));
    EXPECT_EQ(PeakOf(sound.left), 0.0);
}

}  // namespace
}  // namespace horavex
