#pragma once

namespace horavex {

/// The one thread's event loop.
class EventLoop {
public:
    virtual ~EventLoop() = default;

    /// Delivers what is pending and returns at once.
    virtual void Pump() = 0;

    /// Waits for the next event, at most the given time, and delivers it.
    virtual void Rest(int milliseconds) = 0;

    /// Blocks the thread; nothing is delivered meanwhile.
    virtual void Sleep(int milliseconds) = 0;

    /// Ends the process at once, without unloading anything.
    [[noreturn]] virtual void EndProcess() = 0;
};

}  // namespace horavex
