#include "linux/sound/pulse_stream.h"

#include <algorithm>
#include <utility>

#include "linux/sound/pulse_devices.h"
#include "platform/sound_trouble.h"

namespace horavex {

namespace {

constexpr const char* kName = "Horavex";

// How far the server may run ahead of what is heard; a stop cuts no more off than this.
constexpr pa_usec_t kLatency = 200 * PA_USEC_PER_MSEC;

pa_buffer_attr Buffering(const pa_sample_spec& format) {
    constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
    return {.maxlength = kServersChoice,
            .tlength = static_cast<std::uint32_t>(pulse::pa_usec_to_bytes(kLatency, &format)),
            .prebuf = kServersChoice,
            .minreq = kServersChoice,
            .fragsize = kServersChoice};
}

/// Its answer comes without it.
void Forget(pa_operation* operation) {
    if (operation != nullptr) {
        pulse::pa_operation_unref(operation);
    }
}

/// By its switch or at no volume: a device or a program.
template <typename Information>
bool IsMuted(const Information& information) {
    return information.mute != 0 ||
           pulse::pa_cvolume_channels_equal_to(&information.volume, PA_VOLUME_MUTED) != 0;
}

}  // namespace

class PulseStream::Lock {
public:
    explicit Lock(PulseStream& stream) : loop_(stream.loop_.get()) {
        pulse::pa_threaded_mainloop_lock(loop_);
    }
    ~Lock() { pulse::pa_threaded_mainloop_unlock(loop_); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    pa_threaded_mainloop* loop_;
};

PulseStream::PulseStream(const pa_sample_spec& format, std::string device, Events events)
    : format_(format),
      events_(std::move(events)),
      loop_(pulse::pa_threaded_mainloop_new()),
      device_(std::move(device)) {
    pulse::pa_threaded_mainloop_start(loop_.get());
    const Lock lock(*this);
    Connect();
}

// The thread ends first; from then on nothing is called. The closed connection takes the stream
// off the server with all that was to be heard.
PulseStream::~PulseStream() {
    pulse::pa_threaded_mainloop_stop(loop_.get());
    if (stream_ != nullptr) {
        pulse::pa_stream_set_state_callback(stream_.get(), nullptr, nullptr);
        pulse::pa_stream_disconnect(stream_.get());
    }
    stream_.reset();
    if (context_ != nullptr) {
        pulse::pa_context_set_state_callback(context_.get(), nullptr, nullptr);
        pulse::pa_context_set_subscribe_callback(context_.get(), nullptr, nullptr);
        pulse::pa_context_disconnect(context_.get());
    }
    context_.reset();
}

void PulseStream::Connect() {
    context_.reset(pulse::pa_context_new(pulse::pa_threaded_mainloop_get_api(loop_.get()), kName));
    pulse::pa_context_set_state_callback(
        context_.get(),
        [](pa_context*, void* self) { static_cast<PulseStream*>(self)->ContextChanged(); }, this);
    if (pulse::pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        Fail(sound_trouble::kNoServer);
    }
}

void PulseStream::ContextChanged() {
    const pa_context_state_t state = pulse::pa_context_get_state(context_.get());
    if (state == PA_CONTEXT_READY) {
        OpenStream();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        Fail(sound_trouble::kNoServer);
    }
}

void PulseStream::OpenStream() {
    stream_.reset(pulse::pa_stream_new(context_.get(), kName, &format_, nullptr));
    if (stream_ == nullptr) {
        Fail(sound_trouble::kFormat);
        return;
    }
    pulse::pa_stream_set_state_callback(
        stream_.get(),
        [](pa_stream*, void* self) { static_cast<PulseStream*>(self)->StreamChanged(); }, this);
    pulse::pa_stream_set_write_callback(
        stream_.get(),
        [](pa_stream*, std::size_t, void* self) { static_cast<PulseStream*>(self)->Feed(); }, this);
    const pa_buffer_attr buffering = Buffering(format_);
    constexpr auto kFlags = static_cast<pa_stream_flags_t>(
        PA_STREAM_ADJUST_LATENCY | PA_STREAM_AUTO_TIMING_UPDATE | PA_STREAM_INTERPOLATE_TIMING);
    const char* const device = device_.empty() ? nullptr : device_.c_str();
    if (pulse::pa_stream_connect_playback(stream_.get(), device, &buffering, kFlags, nullptr,
                                          nullptr) < 0) {
        FailStream();
    }
}

void PulseStream::StreamChanged() {
    const pa_stream_state_t state = pulse::pa_stream_get_state(stream_.get());
    if (state == PA_STREAM_READY) {
        ready_ = true;
        Listen();
        if (queue_.empty()) {
            events_.empty();
        }
        Feed();
    } else if (!PA_STREAM_IS_GOOD(state)) {
        FailStream();
    }
}

/// Hears of all that may mute it from now on.
void PulseStream::Listen() {
    pulse::pa_context_set_subscribe_callback(
        context_.get(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
            static_cast<PulseStream*>(self)->AskIfHeard();
        },
        this);
    constexpr auto kMixer = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                                PA_SUBSCRIPTION_MASK_SINK_INPUT);
    Forget(pulse::pa_context_subscribe(context_.get(), kMixer, nullptr, nullptr));
    AskIfHeard();
}

void PulseStream::AskIfHeard() {
    const char* const device = pulse::pa_stream_get_device_name(stream_.get());
    dummy_ = device != nullptr && device == std::string_view(kDummyDevice);
    Forget(pulse::pa_context_get_sink_info_by_index(
        context_.get(), pulse::pa_stream_get_device_index(stream_.get()),
        [](pa_context*, const pa_sink_info* sink, int end, void* self) {
            if (end == 0) {
                static_cast<PulseStream*>(self)->deviceMuted_ = IsMuted(*sink);
            }
        },
        this));
    Forget(pulse::pa_context_get_sink_input_info(
        context_.get(), pulse::pa_stream_get_index(stream_.get()),
        [](pa_context*, const pa_sink_input_info* input, int end, void* self) {
            if (end == 0) {
                static_cast<PulseStream*>(self)->programMuted_ = IsMuted(*input);
            }
        },
        this));
}

void PulseStream::Feed() {
    while (ready_ && !queue_.empty()) {
        const Bytes& block = queue_.front();
        const std::size_t room = pulse::pa_stream_writable_size(stream_.get());
        if (room == 0 || room == static_cast<std::size_t>(-1)) {
            return;
        }
        const std::size_t size = std::min(room, block.size() - taken_);
        if (pulse::pa_stream_write(stream_.get(), block.data() + taken_, size, nullptr, 0,
                                   PA_SEEK_RELATIVE) < 0) {
            return;
        }
        taken_ += size;
        if (taken_ == block.size()) {
            queue_.pop_front();
            taken_ = 0;
            events_.taken();
        }
    }
}

void PulseStream::Queue(Bytes block) {
    const Lock lock(*this);
    queue_.push_back(std::move(block));
    Feed();
}

bool PulseStream::HasQueued() {
    const Lock lock(*this);
    return !queue_.empty();
}

void PulseStream::Drain() {
    const Lock lock(*this);
    pa_operation* const operation = pulse::pa_stream_drain(
        stream_.get(),
        [](pa_stream*, int, void* self) {
            auto& stream = *static_cast<PulseStream*>(self);
            stream.TellOnce(stream.events_.ended);
        },
        this);
    if (operation == nullptr) {
        TellOnce(events_.ended);
    }
    Forget(operation);
}

std::int64_t PulseStream::Position() {
    const Lock lock(*this);
    pa_usec_t heard = 0;
    if (!ready_ || pulse::pa_stream_get_time(stream_.get(), &heard) < 0) {
        return 0;
    }
    return static_cast<std::int64_t>(pulse::pa_usec_to_bytes(heard, &format_));
}

std::string PulseStream::Trouble() {
    const Lock lock(*this);
    if (dummy_) {
        return sound_trouble::kNoDevice;
    }
    if (deviceMuted_) {
        return sound_trouble::kMutedDevice;
    }
    return programMuted_ ? sound_trouble::kMutedProgram : trouble_;
}

// A device of choice that is gone, or that refuses, leaves the default one.
void PulseStream::FailStream() {
    if (ready_ || device_.empty()) {
        Fail(sound_trouble::kNoDevice);
    } else {
        device_.clear();
        OpenStream();
    }
}

void PulseStream::Fail(const char* trouble) {
    if (!ready_) {
        trouble_ = trouble;
    }
    TellOnce(ready_ ? events_.ended : events_.unreachable);
    ready_ = false;
    queue_.clear();
    taken_ = 0;
}

void PulseStream::TellOnce(const std::function<void()>& event) {
    if (!std::exchange(told_, true)) {
        event();
    }
}

}  // namespace horavex
