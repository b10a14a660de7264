#include "lib/room.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace horavex {

namespace {

constexpr double kTail = 2.5;     // seconds behind the sound
constexpr double kFadeIn = 0.05;  // seconds
constexpr double kFadeOut = 3.0;  // seconds
constexpr double kWet = 0.32;     // of the room against the sound itself

// M. R. Schroeder, "Natural sounding artificial reverberation", 1962: combs side by side, then
// two all-passes. The lengths have no common divisor, in moments.
constexpr std::size_t kCombs[] = {1310, 1637, 1813, 1927};
constexpr std::size_t kAllPasses[] = {221, 75};
constexpr std::size_t kSpread = 23;  // the right side's are longer by that
constexpr double kDecay = 2.3;       // seconds until a sound has died to a thousandth
constexpr double kSoftness = 0.35;   // how much of the brightness each echo loses
constexpr double kAllPassGain = 0.6;

Sound Comb(const Sound& in, std::size_t length) {
    const double gain = std::pow(10.0, -3.0 * static_cast<double>(length) / kPlayedRate / kDecay);
    Sound line(length, 0.0);
    Sound out(in.size());
    double soft = 0.0;
    for (std::size_t i = 0; i < in.size(); ++i) {
        double& echo = line[i % length];
        out[i] = echo;
        soft = (1.0 - kSoftness) * echo + kSoftness * soft;
        echo = in[i] + gain * soft;
    }
    return out;
}

Sound AllPass(const Sound& in, std::size_t length) {
    Sound line(length, 0.0);
    Sound out(in.size());
    for (std::size_t i = 0; i < in.size(); ++i) {
        double& held = line[i % length];
        out[i] = held - kAllPassGain * in[i];
        held = in[i] + kAllPassGain * out[i];
    }
    return out;
}

Sound Answer(const Sound& dry, std::size_t spread) {
    Sound room(dry.size(), 0.0);
    for (const std::size_t length : kCombs) {
        const Sound echoes = Comb(dry, length + spread);
        for (std::size_t i = 0; i < room.size(); ++i) {
            room[i] += echoes[i] / std::size(kCombs);
        }
    }
    for (const std::size_t length : kAllPasses) {
        room = AllPass(room, length + spread);
    }
    for (std::size_t i = 0; i < room.size(); ++i) {
        room[i] = dry[i] + kWet * room[i];
    }
    return room;
}

double PeakOf(const Sound& sound) {
    double peak = 0.0;
    for (const double value : sound) {
        peak = std::max(peak, std::abs(value));
    }
    return peak;
}

double Fade(double moments, double seconds) {
    const double part = std::min(moments / (seconds * kPlayedRate), 1.0);
    return 0.5 - 0.5 * std::cos(std::numbers::pi * part);
}

void Finish(Sound& sound, double gain) {
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] *= gain * Fade(static_cast<double>(i), kFadeIn) *
                    Fade(static_cast<double>(sound.size() - 1 - i), kFadeOut);
    }
}

}  // namespace

StereoSound PlayInRoom(const Sound& dry) {
    Sound longer = dry;
    longer.resize(dry.size() + static_cast<std::size_t>(kTail * kPlayedRate), 0.0);
    StereoSound sound{Answer(longer, 0), Answer(longer, kSpread)};
    const double gain = kLoudest / std::max({PeakOf(sound.left), PeakOf(sound.right), 1e-9});
    Finish(sound.left, gain);
    Finish(sound.right, gain);
    return sound;
}

}  // namespace horavex
