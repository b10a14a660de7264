#pragma once

#include <cstdint>
#include <functional>

#include "base/bytes.h"
#include "platform/audio_file.h"

namespace horavex {

/// Where sound goes: blocks of samples, queued and played one behind the other. Nothing throws and
/// nothing waits for a device. The events come on the program's thread, out of the event loop.
///
/// Where no device can be reached, a start is silent and no event follows it; the next start tries
/// again. A device that goes away while it plays ends the play.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;

    /// Of the blocks that are written from the next start on. The rate is in moments a second.
    virtual void SetFormat(int sampleRate, SampleFormat format) = 0;

    /// Bytes of samples that make a span of this format, whole moments.
    virtual std::int32_t BytesFor(int milliseconds) = 0;

    /// Plays what is queued and what comes. The position counts from here.
    virtual void Start() = 0;

    /// Queues one block, before the start or behind it. Dropped where it can go nowhere.
    virtual void Write(ByteView block) = 0;

    /// Falls silent at once and drops what is queued. The position stays until the next start.
    virtual void Pause() = 0;

    /// The same for good: no event follows.
    virtual void Stop() = 0;

    /// Bytes that have been heard since the start.
    virtual std::int64_t Position() = 0;

    /// The device has taken a queued block in.
    std::function<void()> onEndArrayPlay;

    /// Nothing is queued any more: the last call for a block before the end.
    std::function<void()> onRequestOnLoadArray;

    /// All that was queued has been heard, or the device is gone. Once a start.
    std::function<void()> onEndPlay;
};

}  // namespace horavex
