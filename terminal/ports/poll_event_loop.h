#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "linux/system_call.h"
#include "platform/event_loop.h"

namespace horavex {

/// The loop of a program without a toolkit, over poll(2): descriptors that can be read from, alarms
/// by the steady clock, and actions that other threads have posted. It sleeps until one of them is
/// due. What it delivers runs guarded, and may run the loop again inside; then everything goes on
/// there, but for the very call that is still running.
class PollEventLoop : public EventLoop {
public:
    using Action = std::function<void()>;
    using Time = std::chrono::steady_clock::time_point;

    class Reader;
    class Alarm;

    /// onEnd comes right before the end of the process. Throws std::system_error where the system
    /// has no descriptor left.
    explicit PollEventLoop(Action onEnd = [] {});

    void Pump() override;
    void Rest(int milliseconds) override;
    void Sleep(int milliseconds) override;

    /// With the status of SetStatus. No destructor runs.
    [[noreturn]] void EndProcess() override;

    /// The exit status to be, 0 at first.
    void SetStatus(int status) { status_ = status; }

    /// Runs an action in a later turn, behind those that were posted before. From any thread.
    void Post(Action action);

    /// Delivers events while something is so; asked before each turn.
    void RunWhile(const std::function<bool()>& isSo);

private:
    struct Watch {
        int descriptor;
        std::shared_ptr<const Action> action;
    };
    struct Due {
        std::optional<Time> at;  // none while it stands still
        std::shared_ptr<const Action> action;
    };

    void Turn(std::optional<Time> end);
    std::vector<std::uint64_t> WaitForReadable(std::optional<Time> end);
    std::optional<Time> FirstDue() const;
    void DeliverReaders(const std::vector<std::uint64_t>& readable);
    void DeliverAlarms();
    void DeliverPosted();
    std::size_t PostedCount();
    Action TakePosted();
    std::uint64_t NextNumber() { return ++lastNumber_; }

    const Action onEnd_;
    int status_ = 0;
    std::uint64_t lastNumber_ = 0;
    std::map<std::uint64_t, Watch> watches_;
    std::map<std::uint64_t, Due> alarms_;
    std::mutex mutex_;
    std::deque<Action> posted_;  // guarded by mutex_
    Descriptor wakeUp_;          // counts them
    std::unique_ptr<Reader> poster_;
};

/// Calls an action whenever a descriptor can be read from, or has ended, as long as the object
/// lives. The action must take what is there or end the object, else it is called for ever. The
/// loop lives longer.
class PollEventLoop::Reader {
public:
    Reader(PollEventLoop& loop, int descriptor, Action onReadable);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

private:
    PollEventLoop& loop_;
    const std::uint64_t number_;
};

/// Calls an action once, a while after each setting, as long as the object lives. The loop lives
/// longer.
class PollEventLoop::Alarm {
public:
    Alarm(PollEventLoop& loop, Action onDue);
    ~Alarm();
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;

    /// In place of what was set before. 0 is due in the next turn.
    void Set(std::chrono::nanoseconds delay);
    void Stop();

private:
    PollEventLoop& loop_;
    const std::uint64_t number_;
};

}  // namespace horavex
