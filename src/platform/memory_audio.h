#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/audio_file.h"
#include "platform/audio_player.h"
#include "platform/recording_desktop.h"

namespace horavex {

/// A sound of MemoryAudioFile.
struct MemorySound {
    Bytes samples;
    int sampleRate = 100;
    SampleFormat format{1};
};

/// Reads the sounds that it was given, by their paths; no other path opens. What is open stays
/// readable when its path goes to another sound.
class MemoryAudioFile : public AudioFile {
public:
    explicit MemoryAudioFile(DesktopLog& log) : log_(log) {}

    void SetMode(int mode) override { log_.Note("audio mode " + std::to_string(mode)); }
    int Open(const std::string& path) override;
    void Close() override { open_.reset(); }
    bool HasAudio() override { return open_.has_value() && !open_->samples.empty(); }
    int SampleRate() override { return open_ ? open_->sampleRate : 0; }
    SampleFormat Format() override { return open_ ? open_->format : SampleFormat{0}; }
    Bytes Read(std::int32_t bytes) override;
    std::int64_t Seek(std::int64_t position) override;

    bool IsOpen() const { return open_.has_value(); }

    std::map<std::string, MemorySound> sounds;  // by path
    std::vector<std::string> opened;            // every path that was asked for, in order
    std::size_t longestRead = 0;                // bytes

private:
    DesktopLog& log_;
    std::optional<MemorySound> open_;
    std::size_t position_ = 0;
};

/// Plays when the test lets time pass, block by block.
class MemoryAudioPlayer : public AudioPlayer {
public:
    void SetFormat(int sampleRate, SampleFormat format) override;
    std::int32_t BytesFor(int milliseconds) override;
    void Start() override;
    void Write(ByteView block) override;
    void Pause() override;
    void Stop() override;
    std::int64_t Position() override { return position_; }
    std::vector<SoundDevice> Devices() override { return devices; }
    void UseDevice(const std::string& id) override { device = id; }
    std::string Trouble() override { return starts == 0 || hasDevice ? "" : "no device"; }

    /// The first block is over. Nothing while nothing plays.
    void FinishBlock();

    /// So many bytes of the first block have been heard.
    void Hear(std::int64_t bytes) { position_ += bytes; }

    /// Finishes blocks until the play ends.
    void PlayToTheEnd();

    /// The device goes away while it plays.
    void LoseDevice();

    bool IsPlaying() const { return started_; }
    std::size_t Queued() const { return queue_.size(); }

    /// All that was heard, from the first start on.
    Bytes heard;
    std::size_t mostQueued = 0;  // blocks
    int starts = 0;
    bool hasDevice = true;
    std::vector<SoundDevice> devices;
    std::string device;  // that was asked for

private:
    void End();

    std::deque<Bytes> queue_;
    int sampleRate_ = 0;
    SampleFormat format_{0};
    std::int64_t position_ = 0;
    bool started_ = false;
};

}  // namespace horavex
