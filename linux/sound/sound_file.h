#pragma once

#include <memory>
#include <vector>

#include "linux/sound/sndfile_library.h"
#include "platform/audio_file.h"

namespace horavex {

/// Reads what libsndfile reads. The content tells what a file is; only a file without any header
/// (VOX, raw, GSM) is known by its ending. What is no regular file, larger than a sound can be or
/// of a rate or a count of channels that no server plays is refused.
class SoundFile : public AudioFile {
public:
    void SetMode(int mode) override;
    int Open(const std::string& path) override;
    void Close() override;
    bool HasAudio() override;
    int SampleRate() override { return info_.samplerate; }
    SampleFormat Format() override { return {info_.channels}; }
    Bytes Read(std::int32_t bytes) override;
    std::int64_t Seek(std::int64_t position) override;

private:
    struct Closer {
        void operator()(SNDFILE* file) const { sndfile::sf_close(file); }
    };

    /// Reads on and tells how many moments were there.
    std::int64_t Skip(std::int64_t moments);

    std::string path_;
    std::unique_ptr<SNDFILE, Closer> file_;
    SF_INFO info_{};
    std::vector<float> samples_;  // of one read
};

}  // namespace horavex
