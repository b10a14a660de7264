#include "lib/instruments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace horavex {
namespace {

constexpr Instrument kAll[] = {Instrument::kFlute, Instrument::kOud,   Instrument::kSantur,
                               Instrument::kBell,  Instrument::kChoir, Instrument::kDrone};
constexpr Instrument kSliding[] = {Instrument::kFlute, Instrument::kOud, Instrument::kSantur,
                                   Instrument::kChoir};

double PeakOf(const Sound& sound) {
    return std::abs(*std::max_element(
        sound.begin(), sound.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }));
}

Sound Play(Instrument instrument, const Note& note) {
    return PlayNotes(instrument, std::span(&note, 1));
}

/// How much of a pitch is in a span of a sound, in seconds.
double StrengthOf(const Sound& sound, double pitch, double from, double to) {
    double sine = 0.0;
    double cosine = 0.0;
    for (std::size_t i = MomentsIn(from); i < std::min(MomentsIn(to), sound.size()); ++i) {
        const double angle = 2.0 * std::numbers::pi * pitch * TimeOf(i);
        sine += sound[i] * std::sin(angle);
        cosine += sound[i] * std::cos(angle);
    }
    return std::hypot(sine, cosine);
}

TEST(Instruments, NotesBeginAndEndAtSilence) {
    for (const Instrument instrument : kAll) {
        const Sound sound = Play(instrument, {0.0, 3.0, 220.0});
        EXPECT_GT(sound.size(), MomentsIn(3.0));
        EXPECT_LT(std::abs(sound.front()), 0.001);
        EXPECT_LT(std::abs(sound.back()), 0.001);
        EXPECT_GT(PeakOf(sound), 0.2);
        EXPECT_LE(PeakOf(sound), 1.5);
    }
}

TEST(Instruments, NotesHaveTheirPitch) {
    for (const Instrument instrument : kAll) {
        for (const double pitch : {110.0, 220.0, 523.25}) {
            const Sound sound = Play(instrument, {0.0, 3.0, pitch});
            const auto strength = [&](double cents) {
                return StrengthOf(sound, Above(pitch, cents), 0.2, 3.0);
            };
            EXPECT_GT(strength(0.0), 3.0 * strength(50.0)) << static_cast<int>(instrument) << pitch;
            EXPECT_GT(strength(0.0), 3.0 * strength(-50.0)) << static_cast<int>(instrument);
        }
    }
}

TEST(Instruments, SlideBeginsAtOnePitchAndEndsAtTheOther) {
    for (const Instrument instrument : kSliding) {
        const Sound sound = Play(instrument, {0.0, 2.0, 300.0, 225.0});
        EXPECT_GT(StrengthOf(sound, 225.0, 0.0, 0.2), StrengthOf(sound, 300.0, 0.0, 0.2));
        EXPECT_GT(StrengthOf(sound, 300.0, 1.2, 2.0), 5.0 * StrengthOf(sound, 225.0, 1.2, 2.0));
    }
}

TEST(Instruments, WeakNotesAreWeaker) {
    for (const Instrument instrument : kAll) {
        const double strong = PeakOf(Play(instrument, {0.0, 1.0, 220.0, 220.0, 1.0}));
        const double weak = PeakOf(Play(instrument, {0.0, 1.0, 220.0, 220.0, 0.4}));
        EXPECT_LT(weak, 0.6 * strong);
        EXPECT_GT(weak, 0.1 * strong);
    }
}

TEST(Instruments, SameNoteAlwaysSoundsAlike) {
    for (const Instrument instrument : kAll) {
        EXPECT_EQ(Play(instrument, {0.0, 0.5, 300.0}), Play(instrument, {2.0, 0.5, 300.0}));
    }
}

TEST(PlayScore, VoicesAddUpWhereTheirNotesStart) {
    const Note late{1.0, 0.5, 220.0};
    const Sound alone = Play(Instrument::kFlute, late);
    const StereoSound sound = PlayScore({1.0, {{Instrument::kFlute, 0.5, 0.0, {late}}}});
    ASSERT_EQ(sound.left.size(), alone.size() + kPlayedRate);
    EXPECT_EQ(sound.left[kPlayedRate / 2], 0.0);
    EXPECT_NEAR(sound.left[kPlayedRate + 9000], 0.5 * alone[9000], 1e-9);
    EXPECT_NEAR(sound.right[kPlayedRate + 9000], 0.5 * alone[9000], 1e-9);
}

TEST(PlayScore, VoicesHaveTheirPlace) {
    const Note note{0.0, 0.5, 220.0};
    const auto side = [&](double place) {
        return PlayScore({1.0, {{Instrument::kBell, 1.0, place, {note}}}});
    };
    EXPECT_LT(PeakOf(side(-1.0).right), 1e-9);
    EXPECT_LT(PeakOf(side(1.0).left), 1e-9);
    EXPECT_GT(PeakOf(side(0.5).right), 2.0 * PeakOf(side(0.5).left));
}

TEST(PlayScore, HandsStrikeALittleLate) {
    const StereoSound sound =
        PlayScore({1.0, {{Instrument::kOud, 1.0, 0.0, {{1.0, 0.5, 220.0}, {2.0, 0.5, 220.0}}}}});
    const auto onset = [&](double from) {
        std::size_t i = MomentsIn(from);
        while (std::abs(sound.left[i + 1] - sound.left[i]) < 0.02) {
            ++i;
        }
        return TimeOf(i) - from;
    };
    EXPECT_NE(onset(1.0), onset(2.0));
    EXPECT_GE(onset(1.0), 0.0);
    EXPECT_LT(onset(1.0), 0.02);
}

}  // namespace
}  // namespace horavex
