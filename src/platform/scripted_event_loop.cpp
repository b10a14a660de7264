#include "platform/scripted_event_loop.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace horavex {

namespace {

std::int64_t ToMilliseconds(double seconds) {
    return std::llround(seconds * 1000.0);
}

}  // namespace

void ScriptedEventLoop::After(double seconds, Event event) {
    events_.emplace(NowMilliseconds() + ToMilliseconds(seconds), std::move(event));
}

void ScriptedEventLoop::AtPump(int n, Event event) {
    atPump_[n] = std::move(event);
}

void ScriptedEventLoop::Pump() {
    ++pumps_;
    const int thisPump = pumps_;
    const auto end = events_.upper_bound(NowMilliseconds());
    for (auto due = std::distance(events_.begin(), end); due > 0 && IsDue(); --due) {
        DeliverFirst();
    }
    if (const auto event = atPump_.extract(thisPump)) {
        event.mapped()();
    }
}

void ScriptedEventLoop::Rest(int milliseconds) {
    ++rests_;
    std::int64_t wait = milliseconds;
    if (!events_.empty()) {
        const std::int64_t untilFirst = events_.begin()->first - NowMilliseconds();
        wait = std::clamp<std::int64_t>(untilFirst, 0, wait);
    }
    clock_.Advance(static_cast<double>(wait) / 1000.0);
    if (IsDue()) {
        DeliverFirst();
    }
}

void ScriptedEventLoop::Sleep(int milliseconds) {
    sleptMilliseconds_ += milliseconds;
    clock_.Advance(milliseconds / 1000.0);
}

void ScriptedEventLoop::EndProcess() {
    throw ProcessEnded{};
}

std::int64_t ScriptedEventLoop::NowMilliseconds() const {
    return ToMilliseconds(clock_.SteadySeconds());
}

bool ScriptedEventLoop::IsDue() const {
    return !events_.empty() && events_.begin()->first <= NowMilliseconds();
}

void ScriptedEventLoop::DeliverFirst() {
    // Off the list first: the event may pump in its turn.
    const Event event = std::move(events_.begin()->second);
    events_.erase(events_.begin());
    event();
}

}  // namespace horavex
