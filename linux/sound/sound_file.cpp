#include "linux/sound/sound_file.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

#include "base/fault.h"
#include "linux/file_status.h"
#include "linux/sound/sample_spec.h"
#include "platform/files.h"

namespace horavex {

namespace {

constexpr float kFullScale = 32768.0F;
constexpr sf_count_t kSkippedAtOnce = 4096;  // moments
constexpr int kNoSound = 1;

// Files of floats may go beyond full scale.
std::int16_t ToSample(float value) {
    const float scaled = std::clamp(value * kFullScale, -kFullScale, kFullScale - 1.0F);
    return static_cast<std::int16_t>(std::lrintf(scaled));
}

// The library would wait for the writer of a pipe for good.
bool IsSoundFile(const std::string& path) {
    try {
        const auto status = StatusBehind(path);
        return status && S_ISREG(status->st_mode) && status->st_size <= kLargestSound;
    } catch (const FileFault&) {
        return false;
    }
}

Bytes BytesOfSamples(const std::vector<float>& samples, std::size_t count) {
    Bytes bytes(count * kSampleBytes);
    for (std::size_t i = 0; i < count; ++i) {
        const std::int16_t sample = ToSample(samples[i]);
        std::memcpy(bytes.data() + i * kSampleBytes, &sample, sizeof sample);
    }
    return bytes;
}

}  // namespace

void SoundFile::SetMode(int mode) {
    if (mode != kSampleBytes) {
        throw std::invalid_argument("samples have two bytes");
    }
}

int SoundFile::Open(const std::string& path) {
    Close();
    if (!IsSoundFile(path)) {
        return kNoSound;
    }
    path_ = path;
    file_.reset(sndfile::sf_open(path.c_str(), SFM_READ, &info_));
    if (file_ == nullptr) {
        return std::max(sndfile::sf_error(nullptr), kNoSound);
    }
    if (!IsPlayable(info_.samplerate, Format())) {
        Close();
        return kNoSound;
    }
    return 0;
}

void SoundFile::Close() {
    file_.reset();
    info_ = {};
}

bool SoundFile::HasAudio() {
    return file_ != nullptr && info_.frames > 0;
}

Bytes SoundFile::Read(std::int32_t bytes) {
    if (file_ == nullptr) {
        return {};
    }
    const auto channels = static_cast<std::size_t>(info_.channels);
    const sf_count_t wanted = bytes / Format().MomentBytes();
    samples_.resize(static_cast<std::size_t>(wanted) * channels);
    const sf_count_t read = sndfile::sf_readf_float(file_.get(), samples_.data(), wanted);
    return BytesOfSamples(samples_, static_cast<std::size_t>(read) * channels);
}

// A decoder that looks back finds its feet in the second before the position. Some formats can
// only be read from their beginning.
std::int64_t SoundFile::Seek(std::int64_t position) {
    if (file_ == nullptr) {
        return 0;
    }
    const sf_count_t wanted = std::min<sf_count_t>(position / Format().MomentBytes(), info_.frames);
    const sf_count_t before = std::max<sf_count_t>(wanted - info_.samplerate, 0);
    sf_count_t reached = info_.seekable != 0 ? sndfile::sf_seek(file_.get(), before, SEEK_SET) : -1;
    if (reached < 0) {
        reached = 0;
        if (Open(std::string(path_)) != 0) {
            return 0;
        }
    }
    return (reached + Skip(wanted - reached)) * Format().MomentBytes();
}

std::int64_t SoundFile::Skip(std::int64_t moments) {
    samples_.resize(static_cast<std::size_t>(kSkippedAtOnce * info_.channels));
    sf_count_t skipped = 0;
    while (skipped < moments) {
        const sf_count_t read = sndfile::sf_readf_float(
            file_.get(), samples_.data(), std::min(kSkippedAtOnce, moments - skipped));
        if (read <= 0) {
            break;
        }
        skipped += read;
    }
    return skipped;
}

}  // namespace horavex
