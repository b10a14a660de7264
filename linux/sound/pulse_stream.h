#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "base/bytes.h"
#include "linux/sound/pulse_library.h"

namespace horavex {

/// One connection to the sound server with one stream, from the making of the object to its end:
/// then it is silent at once. Nothing blocks; what it has to tell it tells from a thread of its
/// own.
class PulseStream {
public:
    /// Called from the stream's thread, none of them after the object is gone.
    struct Events {
        std::function<void()> empty;  // it takes blocks from now on, and has none
        std::function<void()> taken;  // the server has taken a whole block in
        std::function<void()> ended;  // all has been heard, after Drain, or the device is gone
        std::function<void()> unreachable;  // it never became ready
    };

    /// On a device of that name; on the default one where the name is empty or there is no such
    /// device. Events come from the making on.
    PulseStream(const pa_sample_spec& format, std::string device, Events events);
    ~PulseStream();
    PulseStream(const PulseStream&) = delete;
    PulseStream& operator=(const PulseStream&) = delete;

    void Queue(Bytes block);

    /// Blocks that the server has not taken in whole.
    bool HasQueued();

    /// Has the end told once all is heard.
    void Drain();

    /// Bytes that have been heard.
    std::int64_t Position();

    /// Why nothing is heard, as AudioPlayer::Trouble has it.
    std::string Trouble();

private:
    class Lock;

    struct LoopFree {
        void operator()(pa_threaded_mainloop* loop) const {
            pulse::pa_threaded_mainloop_free(loop);
        }
    };
    struct ContextFree {
        void operator()(pa_context* context) const { pulse::pa_context_unref(context); }
    };
    struct StreamFree {
        void operator()(pa_stream* stream) const { pulse::pa_stream_unref(stream); }
    };

    void Connect();
    void ContextChanged();
    void OpenStream();
    void StreamChanged();
    void Feed();
    void Listen();
    void AskIfHeard();
    void FailStream();
    void Fail(const char* trouble);
    void TellOnce(const std::function<void()>& event);

    const pa_sample_spec format_;
    const Events events_;

    // Everything below is used under the lock of the loop.
    std::unique_ptr<pa_threaded_mainloop, LoopFree> loop_;
    std::unique_ptr<pa_context, ContextFree> context_;
    std::unique_ptr<pa_stream, StreamFree> stream_;
    std::string device_;
    std::string trouble_;  // it could not be made
    bool dummy_ = false;   // it goes where no output is
    bool deviceMuted_ = false;
    bool programMuted_ = false;
    std::deque<Bytes> queue_;
    std::size_t taken_ = 0;  // bytes of the first block
    bool ready_ = false;
    bool told_ = false;  // the end, or that nothing is there
};

}  // namespace horavex
