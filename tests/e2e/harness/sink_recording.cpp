#include "e2e/harness/sink_recording.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "e2e/harness/wait_until.h"

namespace horavex {

namespace {

constexpr int kAudible = 300;  // of 32768
constexpr std::size_t kTenth = kWavRate / 10;

Environment RecordersVariables(const SoundServer& server) {
    Environment variables{{"HOME", "/"}, {"PATH", std::getenv("PATH")}};
    server.InstallIn(variables);
    return variables;
}

bool IsAudible(std::int16_t sample) {
    return std::abs(sample) > kAudible;
}

/// The first audible sample from a place on; the size where there is none.
std::size_t NextSound(const Samples& recorded, std::size_t from) {
    const auto begin =
        recorded.begin() + static_cast<std::ptrdiff_t>(std::min(from, recorded.size()));
    return static_cast<std::size_t>(std::find_if(begin, recorded.end(), IsAudible) -
                                    recorded.begin());
}

/// Where the sound ends that a place lies in: behind it is silence for that long, if anything.
std::size_t EndOfSound(const Samples& recorded, std::size_t from, std::size_t silence) {
    std::size_t end = from;
    for (std::size_t i = from; i < recorded.size() && i <= end + silence; ++i) {
        if (IsAudible(recorded[i])) {
            end = i + 1;
        }
    }
    return end;
}

double LikenessAt(const Samples& recorded, std::size_t at, const Samples& sound, std::size_t from,
                  std::size_t count) {
    double product = 0.0;
    double first = 1.0;
    double second = 1.0;
    for (std::size_t i = 0; i < count; ++i) {
        const double a = recorded[at + i];
        const double b = sound[from + i];
        product += a * b;
        first += a * a;
        second += b * b;
    }
    return product / std::sqrt(first * second);
}

}  // namespace

SinkRecording::SinkRecording(const SoundServer& server, const std::string& device)
    : service_({"parec", "-d", device + ".monitor", "--latency-msec=20", "--channels=1",
                "--rate=44100", "--format=s16le", "--raw"},
               RecordersVariables(server)) {
    Continue(0.1);
}

Samples SinkRecording::Taken() const {
    const std::string bytes = service_.Printed();
    Samples samples(bytes.size() / 2);
    if (!samples.empty()) {
        std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
    }
    return samples;
}

void SinkRecording::Continue(double seconds) const {
    const std::size_t wanted =
        Taken().size() + static_cast<std::size_t>(std::ceil(seconds * kWavRate));
    WaitUntil("a longer recording", [&] { return Taken().size() >= wanted; });
}

std::size_t SinkRecording::WaitForSound(std::size_t behind) const {
    return WaitUntil("a sound",
                     [&]() -> std::optional<std::size_t> {
                         const Samples recorded = Taken();
                         const std::size_t at = NextSound(recorded, behind);
                         return at < recorded.size() ? std::optional(at) : std::nullopt;
                     })
        .value();
}

std::size_t SinkRecording::WaitForSilence(std::size_t behind) const {
    return WaitUntil("silence",
                     [&]() -> std::optional<std::size_t> {
                         const Samples recorded = Taken();
                         const std::size_t end = EndOfSound(recorded, behind, kTenth);
                         return recorded.size() > end + kTenth ? std::optional(end) : std::nullopt;
                     })
        .value();
}

std::vector<Stretch> SoundsIn(const Samples& recorded) {
    std::vector<Stretch> sounds;
    for (std::size_t at = NextSound(recorded, 0); at < recorded.size();
         at = NextSound(recorded, sounds.back().to)) {
        sounds.push_back({at, EndOfSound(recorded, at, 2 * kTenth)});
    }
    return sounds;
}

double RootMeanSquare(const Samples& recorded, std::size_t at, std::size_t count) {
    double sum = 0.0;
    for (std::size_t i = at; i < at + count; ++i) {
        sum += static_cast<double>(recorded.at(i)) * recorded.at(i);
    }
    return std::sqrt(sum / static_cast<double>(count));
}

double Likeness(const Samples& recorded, std::size_t at, const Samples& sound, std::size_t from,
                std::size_t count) {
    constexpr std::size_t kDistance = 60;  // samples
    double best = -1.0;
    for (std::size_t shift = 0; shift <= kDistance; ++shift) {
        best = std::max(best, LikenessAt(recorded, at + shift, sound, from, count));
        best = std::max(best, LikenessAt(recorded, at, sound, from + shift, count));
    }
    return best;
}

double PlaceIn(const Samples& sound, const Samples& recorded, std::size_t at) {
    constexpr std::size_t kCompared = 2000;  // samples
    std::size_t best = 0;
    double likeness = -1.0;
    for (std::size_t from = 0; from + kCompared <= sound.size(); ++from) {
        const double found = LikenessAt(recorded, at, sound, from, kCompared);
        if (found > likeness) {
            likeness = found;
            best = from;
        }
    }
    return static_cast<double>(best) / kWavRate;
}

}  // namespace horavex
