#pragma once

#include "e2e/harness/service.h"
#include "e2e/harness/sound_server.h"
#include "support/wav.h"

namespace horavex {

/// Samples from one place of a recording to another.
struct Stretch {
    std::size_t from;
    std::size_t to;

    double Seconds() const { return static_cast<double>(to - from) / kWavRate; }
};

/// What a device of the sound server plays, its first one unless told, from the making of the
/// object on.
class SinkRecording {
public:
    explicit SinkRecording(const SoundServer& server, const std::string& device = "nul");

    Samples Taken() const;

    /// Waits until it is so many seconds longer than now.
    void Continue(double seconds) const;

    /// Waits until a sound has come behind that place, and returns where it begins.
    std::size_t WaitForSound(std::size_t behind = 0) const;

    /// Waits for a tenth of a second of silence behind that place, and returns where it begins.
    std::size_t WaitForSilence(std::size_t behind) const;

private:
    Service service_;
};

/// Stretches that are not silent; pauses of less than a fifth of a second do not part them.
std::vector<Stretch> SoundsIn(const Samples& recorded);

/// How loud it is from a place on, over so many samples.
double RootMeanSquare(const Samples& recorded, std::size_t at, std::size_t count);

/// How much the recording from that place on is the sound from another place on, over so many
/// samples: 1 for the same, whatever its loudness, and near 0 for another. A few samples of
/// distance do not count.
double Likeness(const Samples& recorded, std::size_t at, const Samples& sound, std::size_t from,
                std::size_t count);

/// Where in the sound the stretch of the recording lies that begins at that place, in seconds.
double PlaceIn(const Samples& sound, const Samples& recorded, std::size_t at);

}  // namespace horavex
