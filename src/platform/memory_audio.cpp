#include "platform/memory_audio.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr int kNoSuchFile = 2;

void Fire(const std::function<void()>& event) {
    if (event) {
        event();
    }
}

}  // namespace

int MemoryAudioFile::Open(const std::string& path) {
    opened.push_back(path);
    const auto found = sounds.find(path);
    open_ = found == sounds.end() ? std::nullopt : std::optional(found->second);
    position_ = 0;
    return open_ ? 0 : kNoSuchFile;
}

Bytes MemoryAudioFile::Read(std::int32_t bytes) {
    if (!open_) {
        return {};
    }
    longestRead = std::max(longestRead, static_cast<std::size_t>(bytes));
    const std::size_t end =
        std::min(open_->samples.size(), position_ + static_cast<std::size_t>(bytes));
    Bytes block(open_->samples.begin() + static_cast<std::ptrdiff_t>(position_),
                open_->samples.begin() + static_cast<std::ptrdiff_t>(end));
    position_ = end;
    return block;
}

std::int64_t MemoryAudioFile::Seek(std::int64_t position) {
    if (!open_) {
        return 0;
    }
    const std::int64_t moment = open_->format.MomentBytes();
    const auto end = static_cast<std::int64_t>(open_->samples.size());
    position_ =
        static_cast<std::size_t>(std::clamp<std::int64_t>(position, 0, end) / moment * moment);
    return static_cast<std::int64_t>(position_);
}

void MemoryAudioPlayer::SetFormat(int sampleRate, SampleFormat format) {
    sampleRate_ = sampleRate;
    format_ = format;
}

std::int32_t MemoryAudioPlayer::BytesFor(int milliseconds) {
    const std::int64_t moments = std::int64_t{milliseconds} * sampleRate_ / 1000;
    return static_cast<std::int32_t>(moments * format_.MomentBytes());
}

void MemoryAudioPlayer::Start() {
    ++starts;
    started_ = hasDevice;
    position_ = 0;
    if (!started_) {
        queue_.clear();
    }
}

void MemoryAudioPlayer::Write(ByteView block) {
    if (hasDevice) {
        queue_.emplace_back(block.begin(), block.end());
        mostQueued = std::max(mostQueued, queue_.size());
    }
}

void MemoryAudioPlayer::Pause() {
    Stop();
}

void MemoryAudioPlayer::Stop() {
    started_ = false;
    queue_.clear();
}

void MemoryAudioPlayer::FinishBlock() {
    if (!started_) {
        return;
    }
    if (!queue_.empty()) {
        const Bytes block = std::move(queue_.front());
        queue_.pop_front();
        position_ += static_cast<std::int64_t>(block.size());
        heard.insert(heard.end(), block.begin(), block.end());
        Fire(onEndArrayPlay);
    }
    if (started_ && queue_.empty()) {
        Fire(onRequestOnLoadArray);
    }
    if (started_ && queue_.empty()) {
        End();
    }
}

void MemoryAudioPlayer::PlayToTheEnd() {
    while (started_) {
        FinishBlock();
    }
}

void MemoryAudioPlayer::LoseDevice() {
    hasDevice = false;
    if (started_) {
        End();
    }
}

void MemoryAudioPlayer::End() {
    Stop();
    Fire(onEndPlay);
}

}  // namespace horavex
