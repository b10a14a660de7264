#include "linux/sound/sample_spec.h"

#include "linux/sound/pulse_library.h"

namespace horavex {

pa_sample_spec SpecOf(int sampleRate, SampleFormat format) {
    return {.format = PA_SAMPLE_S16NE,
            .rate = static_cast<std::uint32_t>(sampleRate),
            .channels = static_cast<std::uint8_t>(format.channels)};
}

bool IsPlayable(int sampleRate, SampleFormat format) {
    constexpr int kMostChannels = PA_CHANNELS_MAX;
    const pa_sample_spec spec = SpecOf(sampleRate, format);
    return format.channels <= kMostChannels && pulse::pa_sample_spec_valid(&spec) != 0;
}

}  // namespace horavex
