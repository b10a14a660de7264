#include "athan/loudness.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace horavex {

namespace {

/// The gain of a volume from 0 to 1. The ear hears ratios: by the cube, as the mixers of desktops
/// have it, half the way of a slider is 18 dB, and a slider that moves evenly sounds so.
double GainOf(double volume) {
    return volume * volume * volume;
}

}  // namespace

Gain::Gain(const Loudness& loudness, int sampleRate, SampleFormat format, std::int64_t length)
    : level_(GainOf(loudness.percent / 100.0)), momentBytes_(format.MomentBytes()) {
    riseMoments_ =
        std::min(std::int64_t{loudness.fadeSeconds} * sampleRate, length / momentBytes_ / 2);
}

double Gain::At(std::int64_t moment) const {
    return moment >= riseMoments_
               ? level_
               : level_ * GainOf(static_cast<double>(moment) / static_cast<double>(riseMoments_));
}

void Gain::Apply(Bytes& block, std::int64_t position) const {
    if (level_ == 1.0 && position / momentBytes_ >= riseMoments_) {
        return;
    }
    for (std::size_t at = 0; at + kSampleBytes <= block.size(); at += kSampleBytes) {
        std::int16_t sample = 0;
        std::memcpy(&sample, block.data() + at, sizeof sample);
        const double gain = At((position + static_cast<std::int64_t>(at)) / momentBytes_);
        sample = static_cast<std::int16_t>(std::lrint(sample * gain));
        std::memcpy(block.data() + at, &sample, sizeof sample);
    }
}

}  // namespace horavex
