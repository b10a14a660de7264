#include "linux/sound/beep.h"

#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

namespace horavex {

namespace {

constexpr int kRate = 44100;  // samples a second
constexpr double kSeconds = 0.25;
constexpr auto kSamples = static_cast<std::size_t>(kSeconds * kRate);
constexpr double kPitch = 880.0;   // hertz
constexpr double kLoudness = 0.4;  // of full scale

// The tone swells and fades, so that it does not click.
double ToneAt(double part) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const double swell = 0.5 - 0.5 * std::cos(kTurn * part);
    return kLoudness * swell * std::sin(kTurn * kPitch * part * kSeconds);
}

Bytes Tone() {
    Bytes tone(kSamples * kSampleBytes);
    for (std::size_t i = 0; i < kSamples; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(kSamples);
        const auto sample = static_cast<std::int16_t>(32767.0 * ToneAt(part));
        std::memcpy(tone.data() + i * kSampleBytes, &sample, sizeof sample);
    }
    return tone;
}

}  // namespace

Beep::Beep(PulsePlayer::Post post, std::function<void()> fallback) : player_(std::move(post)) {
    player_.SetFormat(kRate, {1});
    player_.onUnreachable = std::move(fallback);
}

void Beep::Sound() {
    player_.Stop();
    player_.Write(Tone());
    player_.Start();
}

}  // namespace horavex
