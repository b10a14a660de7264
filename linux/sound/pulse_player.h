#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/audio_player.h"

namespace horavex {

class PulseStream;

/// Plays on the user's sound server, PulseAudio or PipeWire. It is connected from a start to the
/// end of the play and at no other time, in a thread of its own; none is started where there is
/// no server.
class PulsePlayer : public AudioPlayer {
public:
    /// Runs a function on the program's thread, out of its event loop. Called from any thread.
    using Post = std::function<void(std::function<void()>)>;

    explicit PulsePlayer(Post post);
    ~PulsePlayer() override;

    void SetFormat(int sampleRate, SampleFormat format) override;
    std::int32_t BytesFor(int milliseconds) override;
    void Start() override;
    void Write(ByteView block) override;
    void Pause() override;
    void Stop() override;
    std::int64_t Position() override;
    std::vector<SoundDevice> Devices() override;
    void UseDevice(const std::string& id) override;
    std::string Trouble() override;

private:
    void BlockTaken();
    void CallForBlocks();
    void Ended();
    void Unreachable();
    void Disconnect();
    std::function<void()> Posted(void (PulsePlayer::*event)());

    Post post_;
    int sampleRate_ = 0;
    SampleFormat format_{0};
    std::string device_;
    std::vector<Bytes> waiting_;  // blocks, written before the start
    std::unique_ptr<PulseStream> stream_;
    std::shared_ptr<const bool> start_;  // lives from a start to the end of its play
    std::int64_t position_ = 0;          // of the stream that is gone
    std::string trouble_;                // likewise
};

}  // namespace horavex
