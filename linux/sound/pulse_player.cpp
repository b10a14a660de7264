#include "linux/sound/pulse_player.h"

#include <utility>

#include "linux/sound/pulse_devices.h"
#include "linux/sound/pulse_stream.h"
#include "linux/sound/sample_spec.h"
#include "platform/sound_trouble.h"

namespace horavex {

namespace {

void Fire(const std::function<void()>& event) {
    if (event) {
        event();
    }
}

}  // namespace

PulsePlayer::PulsePlayer(Post post) : post_(std::move(post)) {}

PulsePlayer::~PulsePlayer() = default;

void PulsePlayer::SetFormat(int sampleRate, SampleFormat format) {
    sampleRate_ = sampleRate;
    format_ = format;
}

std::int32_t PulsePlayer::BytesFor(int milliseconds) {
    const std::int64_t moments = std::int64_t{milliseconds} * sampleRate_ / 1000;
    return static_cast<std::int32_t>(moments * format_.MomentBytes());
}

// Each stream counts its position from zero.
void PulsePlayer::Start() {
    std::vector<Bytes> blocks = std::exchange(waiting_, {});
    Disconnect();
    position_ = 0;
    trouble_.clear();
    if (!IsPlayable(sampleRate_, format_)) {
        trouble_ = sound_trouble::kFormat;
        return;
    }
    start_ = std::make_shared<const bool>();
    PulseStream::Events events;
    events.empty = Posted(&PulsePlayer::CallForBlocks);
    events.taken = Posted(&PulsePlayer::BlockTaken);
    events.ended = Posted(&PulsePlayer::Ended);
    events.unreachable = Posted(&PulsePlayer::Unreachable);
    stream_ =
        std::make_unique<PulseStream>(SpecOf(sampleRate_, format_), device_, std::move(events));
    for (Bytes& block : blocks) {
        stream_->Queue(std::move(block));
    }
}

// What a stream has posted counts for nothing once its play is over.
std::function<void()> PulsePlayer::Posted(void (PulsePlayer::*event)()) {
    return [this, event, start = std::weak_ptr(start_)] {
        post_([this, event, start] {
            if (!start.expired()) {
                (this->*event)();
            }
        });
    };
}

void PulsePlayer::Write(ByteView block) {
    Bytes copy(block.begin(), block.end());
    if (stream_ != nullptr) {
        stream_->Queue(std::move(copy));
    } else {
        waiting_.push_back(std::move(copy));
    }
}

void PulsePlayer::Pause() {
    Disconnect();
}

void PulsePlayer::Stop() {
    Disconnect();
}

std::int64_t PulsePlayer::Position() {
    return stream_ != nullptr ? stream_->Position() : position_;
}

std::vector<SoundDevice> PulsePlayer::Devices() {
    return PulseDevices();
}

void PulsePlayer::UseDevice(const std::string& id) {
    device_ = id;
}

std::string PulsePlayer::Trouble() {
    return stream_ != nullptr ? stream_->Trouble() : trouble_;
}

void PulsePlayer::Disconnect() {
    position_ = Position();
    trouble_ = Trouble();
    start_.reset();
    stream_.reset();
    waiting_.clear();
}

void PulsePlayer::BlockTaken() {
    const std::weak_ptr start(start_);
    Fire(onEndArrayPlay);
    if (!start.expired()) {
        CallForBlocks();
    }
}

// The end comes once nobody brings a block any more.
void PulsePlayer::CallForBlocks() {
    if (stream_->HasQueued()) {
        return;
    }
    const std::weak_ptr start(start_);
    Fire(onRequestOnLoadArray);
    if (!start.expired() && !stream_->HasQueued()) {
        stream_->Drain();
    }
}

void PulsePlayer::Ended() {
    Disconnect();
    Fire(onEndPlay);
}

void PulsePlayer::Unreachable() {
    Disconnect();
    Fire(onUnreachable);
}

}  // namespace horavex
