#pragma once

#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>
#include <string>
#include <vector>

#include "base/bytes.h"

namespace horavex {

/// Samples of one channel at kWavRate.
using Samples = std::vector<std::int16_t>;
inline constexpr int kWavRate = 44100;

/// A tone at half of full scale that goes from one pitch to another, in hertz, so that every moment
/// of it sounds different.
inline Samples Glide(double seconds, double from, double to) {
    Samples samples(static_cast<std::size_t>(seconds * kWavRate));
    double turns = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(samples.size());
        turns += (from + (to - from) * part) / kWavRate;
        samples[i] = static_cast<std::int16_t>(16384.0 * std::sin(2.0 * std::numbers::pi * turns));
    }
    return samples;
}

/// A file of them.
inline std::string WavOf(const Samples& samples) {
    const auto size = static_cast<std::int32_t>(samples.size() * 2);
    Bytes head(44);
    const auto put = [&head](std::size_t at, const std::string& text) {
        std::copy(text.begin(), text.end(), head.begin() + static_cast<std::ptrdiff_t>(at));
    };
    put(0, "RIFF");
    PutInt32(head, 4, 36 + size);
    put(8, "WAVEfmt ");
    PutInt32(head, 16, 16);
    PutInt16(head, 20, 1);
    PutInt16(head, 22, 1);
    PutInt32(head, 24, kWavRate);
    PutInt32(head, 28, kWavRate * 2);
    PutInt16(head, 32, 2);
    PutInt16(head, 34, 16);
    put(36, "data");
    PutInt32(head, 40, size);
    std::string file = StringOf(head);
    file.append(reinterpret_cast<const char*>(samples.data()), samples.size() * 2);
    return file;
}

inline void WriteWav(const std::string& path, const Samples& samples) {
    std::ofstream(path, std::ios::binary) << WavOf(samples);
}

}  // namespace horavex
