#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

namespace horavex {

/// What tells sounds apart for the ear, measured. One channel, full scale at 1.
struct SoundTraits {
    double centroid;  // hertz: the middle of the spectrum, by energy
    double onsets;    // a second: how often something is struck or set in
    std::array<double, 24>
        pitches{};  // how much of each quarter tone, octaves folded, as a unit vector
};

namespace traits {

using Spectrum = std::vector<std::complex<double>>;

/// By halves and halves again, of a power of two.
inline void Transform(Spectrum& values) {
    const std::size_t count = values.size();
    if (count == 1) {
        return;
    }
    Spectrum even(count / 2), odd(count / 2);
    for (std::size_t i = 0; i < count / 2; ++i) {
        even[i] = values[2 * i];
        odd[i] = values[2 * i + 1];
    }
    Transform(even);
    Transform(odd);
    for (std::size_t i = 0; i < count / 2; ++i) {
        const double angle =
            -2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        const std::complex<double> turned = std::polar(1.0, angle) * odd[i];
        values[i] = even[i] + turned;
        values[i + count / 2] = even[i] - turned;
    }
}

/// Energies of the lines of a spectrum, under a Hann window.
inline std::vector<double> EnergiesAt(const std::vector<double>& sound, std::size_t from,
                                      std::size_t count) {
    Spectrum spectrum(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double turn =
            2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        spectrum[i] = sound[from + i] * (0.5 - 0.5 * std::cos(turn));
    }
    Transform(spectrum);
    std::vector<double> energies(count / 2);
    for (std::size_t i = 0; i < energies.size(); ++i) {
        energies[i] = std::norm(spectrum[i]);
    }
    return energies;
}

/// Energies of the whole sound, looked at every second.
inline std::vector<double> MeanEnergies(const std::vector<double>& sound, double rate) {
    constexpr std::size_t kCount = 16384;
    std::vector<double> sum(kCount / 2, 0.0);
    for (std::size_t at = 0; at + kCount <= sound.size(); at += static_cast<std::size_t>(rate)) {
        const std::vector<double> energies = EnergiesAt(sound, at, kCount);
        std::transform(sum.begin(), sum.end(), energies.begin(), sum.begin(), std::plus<>());
    }
    return sum;
}

inline double Centroid(const std::vector<double>& energies, double line) {
    double weighted = 0.0, sum = 0.0;
    for (std::size_t i = 0; i < energies.size(); ++i) {
        weighted += energies[i] * line * static_cast<double>(i);
        sum += energies[i];
    }
    return weighted / sum;
}

inline std::array<double, 24> Pitches(const std::vector<double>& energies, double line) {
    std::array<double, 24> pitches{};
    for (auto i = static_cast<std::size_t>(90.0 / line); i < static_cast<std::size_t>(900.0 / line);
         ++i) {
        const double steps = 24.0 * std::log2(static_cast<double>(i) * line / 440.0) + 240.0;
        pitches[static_cast<std::size_t>(std::lround(steps)) % 24] += std::sqrt(energies[i]);
    }
    double square = 0.0;
    for (const double pitch : pitches) {
        square += pitch * pitch;
    }
    for (double& pitch : pitches) {
        pitch /= std::sqrt(square);
    }
    return pitches;
}

/// How often the energy of 20 ms is twice that of the 60 ms before, once within 80 ms.
inline double Onsets(const std::vector<double>& sound, double rate) {
    const auto span = static_cast<std::size_t>(rate / 50.0);
    std::vector<double> energies;
    for (std::size_t at = 1; at + span <= sound.size(); at += span) {
        double energy = 0.0;
        for (std::size_t i = at; i < at + span; ++i) {
            const double slope = sound[i] - sound[i - 1];  // what is struck begins brightly
            energy += slope * slope;
        }
        energies.push_back(energy);
    }
    const double floor = 1e-4 * *std::max_element(energies.begin(), energies.end());
    int count = 0;
    for (std::size_t i = 3; i < energies.size(); ++i) {
        const double before = (energies[i - 1] + energies[i - 2] + energies[i - 3]) / 3.0;
        if (energies[i] > 2.0 * before + floor) {
            ++count;
            i += 3;
        }
    }
    return count / (static_cast<double>(sound.size()) / rate);
}

}  // namespace traits

inline SoundTraits TraitsOf(const std::vector<double>& sound, double rate) {
    const std::vector<double> energies = traits::MeanEnergies(sound, rate);
    const double line = rate / 2.0 / static_cast<double>(energies.size());
    return {traits::Centroid(energies, line), traits::Onsets(sound, rate),
            traits::Pitches(energies, line)};
}

/// 1 for the same pitches in the same shares, 0 for none in common.
inline double LikenessOfPitches(const SoundTraits& one, const SoundTraits& other) {
    double sum = 0.0;
    for (std::size_t i = 0; i < one.pitches.size(); ++i) {
        sum += one.pitches[i] * other.pitches[i];
    }
    return sum;
}

}  // namespace horavex
