// A reed flute, blown at the rim: few overtones, much breath, and every note a little alive.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "lib/breath.h"
#include "lib/instruments.h"

namespace horavex {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr double kLoudness = 0.42;
constexpr double kAttack = 0.11;       // seconds
constexpr double kVibrato = 4.8;       // hertz
constexpr double kDepth = 9.0;         // cents
constexpr double kWander = 14.0;       // cents of an unsteady lip, before it is softened
constexpr double kBreathiness = 0.42;  // of the wind against the tone
constexpr double kChiff = 0.8;         // of the wind at the attack, beside that

// Strengths of the overtones when blown fully; a weaker breath has fewer.
constexpr double kOvertones[] = {1.0, 0.52, 0.34, 0.10, 0.075, 0.03, 0.016};

/// The tone at a turn of its pitch.
double ToneAt(double turns, double strength) {
    const double sine = std::sin(kTurn * turns);
    const double twice = 2.0 * std::cos(kTurn * turns);
    double before = 0.0, now = sine, brightness = 1.0, tone = 0.0;
    for (const double overtone : kOvertones) {
        tone += overtone * brightness * now;
        const double next = twice * now - before;  // sin((n+1)x) = 2 cos x sin nx - sin((n-1)x)
        before = now;
        now = next;
        brightness *= 0.45 + 0.55 * strength;
    }
    return tone;
}

/// The wind of the breath: broad, and more of it where the reed's own pitches lie.
class Wind {
public:
    explicit Wind(double pitch)
        : noise_(static_cast<std::uint32_t>(pitch * 16.0)),
          low_(2.0 * pitch, 1.2 * pitch),
          high_(2600.0, 2800.0) {}

    double Next() {
        const double noise = noise_.Next();
        return low_(noise) + 0.35 * high_(noise);
    }

private:
    Noise noise_;
    Resonator low_;
    Resonator high_;
};

}  // namespace

Sound PlayFlute(std::span<const Note> notes) {
    const Breath breath(notes);
    const double length = TimeOf(breath.Size());
    Sound sound(breath.Size(), 0.0);
    Wind wind(notes.front().pitch);
    Noise lip(11), push(13);
    Softener lipSoft(3.0), pushSoft(5.0);
    double turns = 0.0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double t = TimeOf(i);
        const double vibrato = breath.calm[i] * std::sin(kTurn * kVibrato * t);
        const double wander = 50.0 * kWander / 20.0 * lipSoft(lip.Next());
        turns += Above(breath.pitch[i], kDepth * vibrato + wander) / kPlayedRate;
        const double strength =
            breath.strength[i] * (1.0 + 0.10 * vibrato + 1.5 * pushSoft(push.Next()));
        const double windy =
            kBreathiness * (1.0 + kChiff * (1.0 - Swell(t - 0.04, 0.12))) * (0.5 + 0.5 * strength);
        const double value =
            strength * ToneAt(turns, std::min(strength, 1.0)) + windy * wind.Next();
        sound[i] = kLoudness * value * Swell(t, kAttack) * Swell(length - t, kRelease);
    }
    return sound;
}

}  // namespace horavex
