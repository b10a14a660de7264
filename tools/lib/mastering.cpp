#include "lib/mastering.h"

#include <cmath>
#include <string>

#include "base/fault.h"
#include "lib/loudness_meter.h"

namespace horavex {

namespace {

constexpr double kSilent = 0.03;  // seconds at either end
constexpr double kFadeIn = 0.02;  // seconds behind the first of them

double Loudness(const StereoSound& sound) {
    return TimeOf(sound.left.size()) < kShortest ? UngatedLoudness(sound) : GatedLoudness(sound);
}

void Fade(Sound& sound, double fadeOut) {
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] *= Swell(TimeOf(i), kFadeIn) * Swell(TimeOf(sound.size() - i), fadeOut);
    }
}

void Scale(Sound& sound, double gain) {
    for (double& value : sound) {
        value *= gain;
    }
}

Sound BetweenSilences(const Sound& sound) {
    Sound all = Silence(kSilent);
    all.insert(all.end(), sound.begin(), sound.end());
    all.resize(all.size() + MomentsIn(kSilent), 0.0);
    return all;
}

}  // namespace

StereoSound Master(StereoSound sound, double length, double fadeOut) {
    for (Sound* side : {&sound.left, &sound.right}) {
        side->resize(MomentsIn(length), 0.0);
        Fade(*side, fadeOut);
        *side = BetweenSilences(*side);
    }
    const double loudness = Loudness(sound);
    if (loudness <= kNoLoudness) {
        throw BoundsFault("there is nothing to be heard");
    }
    const double gain = std::pow(10.0, (kWantedLoudness - loudness) / 20.0);
    Scale(sound.left, gain);
    Scale(sound.right, gain);
    const double peak = TruePeak(sound);
    if (peak > kHighestPeak) {
        throw BoundsFault("peaks reach " + std::to_string(peak) + " dB of full scale");
    }
    return sound;
}

}  // namespace horavex
