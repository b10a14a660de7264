#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "platform/event_loop.h"
#include "platform/manual_clock.h"

namespace horavex {

/// What ScriptedEventLoop::EndProcess throws in place of ending the process. Deliberately no
/// Fault, so that no trap of the program takes it for one.
struct ProcessEnded {};

/// An event loop whose events are written beforehand and whose time is a ManualClock's.
class ScriptedEventLoop : public EventLoop {
public:
    using Event = std::function<void()>;

    explicit ScriptedEventLoop(ManualClock& clock) : clock_(clock) {}

    /// An event that comes due when the steady clock has gone on by that many seconds, to the
    /// millisecond; 0 is pending at once. Equal times keep their order.
    void After(double seconds, Event event);

    /// An event that arrives during the n-th pump, 1-based from the beginning, once the due
    /// ones have been delivered. One event a pump.
    void AtPump(int n, Event event);

    int Pumps() const { return pumps_; }
    int Rests() const { return rests_; }

    /// Milliseconds spent in Sleep, all in all.
    int SleptMilliseconds() const { return sleptMilliseconds_; }

    /// Delivers what was due at the call; what its events post waits for the next one.
    void Pump() override;

    /// Moves the clock to the next event, at most the given time, and delivers that event.
    void Rest(int milliseconds) override;

    /// Moves the clock.
    void Sleep(int milliseconds) override;

    [[noreturn]] void EndProcess() override;

private:
    std::int64_t NowMilliseconds() const;
    bool IsDue() const;
    void DeliverFirst();

    ManualClock& clock_;
    std::multimap<std::int64_t, Event> events_;  // by due time, milliseconds of the steady clock
    std::map<int, Event> atPump_;
    int pumps_ = 0;
    int rests_ = 0;
    int sleptMilliseconds_ = 0;
};

}  // namespace horavex
