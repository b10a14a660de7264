#include "linux/sound/pulse_devices.h"

#include <chrono>
#include <memory>
#include <string_view>

#include "linux/sound/pulse_library.h"

namespace horavex {

namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr std::chrono::seconds kLimit{1};

struct LoopFree {
    void operator()(pa_mainloop* loop) const { pulse::pa_mainloop_free(loop); }
};
struct ContextFree {
    void operator()(pa_context* context) const {
        pulse::pa_context_disconnect(context);
        pulse::pa_context_unref(context);
    }
};

/// One question to the server, on the thread that asks it.
class Question {
public:
    Question()
        : loop_(pulse::pa_mainloop_new()),
          context_(pulse::pa_context_new(pulse::pa_mainloop_get_api(loop_.get()), "Horavex")) {
        pulse::pa_context_set_state_callback(
            context_.get(), [](pa_context*, void* self) { static_cast<Question*>(self)->Ask(); },
            this);
        over_ =
            pulse::pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0;
    }
    ~Question() { pulse::pa_context_set_state_callback(context_.get(), nullptr, nullptr); }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    std::vector<SoundDevice> Answer() {
        const auto end = steady_clock::now() + kLimit;
        while (!over_ && steady_clock::now() < end) {
            Wait(std::chrono::duration_cast<microseconds>(end - steady_clock::now()));
        }
        return devices_;
    }

private:
    void Wait(microseconds longest) {
        const bool runs =
            pulse::pa_mainloop_prepare(loop_.get(), static_cast<int>(longest.count())) >= 0 &&
            pulse::pa_mainloop_poll(loop_.get()) >= 0 &&
            pulse::pa_mainloop_dispatch(loop_.get()) >= 0;
        over_ = over_ || !runs;
    }

    void Ask() {
        const pa_context_state_t state = pulse::pa_context_get_state(context_.get());
        if (state == PA_CONTEXT_READY) {
            pa_operation* const operation = pulse::pa_context_get_sink_info_list(
                context_.get(),
                [](pa_context*, const pa_sink_info* sink, int end, void* self) {
                    static_cast<Question*>(self)->Take(end == 0 ? sink : nullptr);
                },
                this);
            over_ = operation == nullptr;
            if (!over_) {
                pulse::pa_operation_unref(operation);
            }
        } else if (!PA_CONTEXT_IS_GOOD(state)) {
            over_ = true;
        }
    }

    /// Nothing behind the last one.
    void Take(const pa_sink_info* sink) {
        if (sink == nullptr) {
            over_ = true;
        } else if (sink->name != std::string_view(kDummyDevice)) {
            devices_.push_back({sink->name, sink->description});
        }
    }

    std::unique_ptr<pa_mainloop, LoopFree> loop_;
    std::unique_ptr<pa_context, ContextFree> context_;
    std::vector<SoundDevice> devices_;
    bool over_ = false;
};

}  // namespace

std::vector<SoundDevice> PulseDevices() {
    return Question().Answer();
}

}  // namespace horavex
