#pragma once

#include <sndfile.h>

#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

namespace horavex {

/// Writes a sound file of that format. samples: floats, those of one moment side by side.
inline void WriteSound(const std::string& path, int format, const std::vector<float>& samples,
                       int sampleRate = 8000, int channels = 1) {
    SF_INFO info{};
    info.samplerate = sampleRate;
    info.channels = channels;
    info.format = format;
    SNDFILE* file = ::sf_open(path.c_str(), SFM_WRITE, &info);
    if (file == nullptr) {
        throw std::runtime_error("cannot write " + path + ": " + ::sf_strerror(nullptr));
    }
    ::sf_write_float(file, samples.data(), static_cast<sf_count_t>(samples.size()));
    ::sf_close(file);
}

/// A tone at half of full scale.
inline std::vector<float> ToneOf(double seconds, double hertz, int sampleRate = 8000) {
    std::vector<float> samples(static_cast<std::size_t>(seconds * sampleRate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double turns = hertz * static_cast<double>(i) / sampleRate;
        samples[i] = static_cast<float>(0.5 * std::sin(2.0 * std::numbers::pi * turns));
    }
    return samples;
}

}  // namespace horavex
