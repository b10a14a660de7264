#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/bytes.h"
#include "platform/audio_file.h"

namespace horavex {

/// Something that sound can come out of.
struct SoundDevice {
    std::string id;    // the sound server's own name, the same at every start
    std::string name;  // for people

    bool operator==(const SoundDevice&) const = default;
};

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

    /// What there is now; empty where no sound server is reached.
    virtual std::vector<SoundDevice> Devices() = 0;

    /// The device of every start from now on, by its id; empty for the default one, which plays in
    /// place of a device that is gone, too.
    virtual void UseDevice(const std::string& id) = 0;

    /// Why the last start was silent, in words for the user; empty where it was not.
    virtual std::string Trouble() = 0;

    /// The device has taken a queued block in.
    std::function<void()> onEndArrayPlay;

    /// Nothing is queued any more: the last call for a block before the end.
    std::function<void()> onRequestOnLoadArray;

    /// All that was queued has been heard, or the device is gone. Once a start.
    std::function<void()> onEndPlay;

    /// No device could be reached after a start; Trouble() tells why.
    std::function<void()> onUnreachable;
};

}  // namespace horavex
