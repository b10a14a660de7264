#include "terminal/ports/poll_event_loop.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/fault_box.h"

namespace horavex {

namespace {

using std::chrono::nanoseconds;
using Clock = std::chrono::steady_clock;

Descriptor NewEventDescriptor() {
    Descriptor descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE));
    if (!descriptor.IsOpen()) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    return descriptor;
}

timespec SpanOf(nanoseconds span) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(span);
    return {seconds.count(), (span - seconds).count()};
}

/// Waits until one can be read from, at most until then. A signal's arrival ends it, too.
void Poll(std::vector<pollfd>& descriptors, std::optional<Clock::time_point> end) {
    const timespec limit =
        end ? SpanOf(std::max(nanoseconds(0), nanoseconds(*end - Clock::now()))) : timespec{};
    if (::ppoll(descriptors.data(), descriptors.size(), end ? &limit : nullptr, nullptr) < 0) {
        for (pollfd& descriptor : descriptors) {
            descriptor.revents = 0;
        }
    }
}

}  // namespace

PollEventLoop::PollEventLoop(Action onEnd)
    : onEnd_(std::move(onEnd)), wakeUp_(NewEventDescriptor()) {
    poster_ = std::make_unique<Reader>(*this, wakeUp_.Number(), [this] { DeliverPosted(); });
}

void PollEventLoop::Pump() {
    Turn(Clock::now());
}

void PollEventLoop::Rest(int milliseconds) {
    Turn(Clock::now() + std::chrono::milliseconds(milliseconds));
}

void PollEventLoop::Sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void PollEventLoop::EndProcess() {
    onEnd_();
    ::_exit(status_);
}

void PollEventLoop::Post(Action action) {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(action));
    [[maybe_unused]] const int result = ::eventfd_write(wakeUp_.Number(), 1);
}

void PollEventLoop::RunWhile(const std::function<bool()>& isSo) {
    while (isSo()) {
        Turn(std::nullopt);
    }
}

void PollEventLoop::Turn(std::optional<Time> end) {
    DeliverReaders(WaitForReadable(end));
    DeliverAlarms();
}

/// Waits until something is due, at most until then.
std::vector<std::uint64_t> PollEventLoop::WaitForReadable(std::optional<Time> end) {
    std::vector<pollfd> descriptors;
    std::vector<std::uint64_t> numbers;
    for (const auto& [number, watch] : watches_) {
        descriptors.push_back({watch.descriptor, POLLIN, 0});
        numbers.push_back(number);
    }
    const std::optional<Time> due = FirstDue();
    Poll(descriptors, due && end ? std::min(*due, *end) : due ? due : end);
    std::vector<std::uint64_t> readable;
    for (std::size_t i = 0; i < descriptors.size(); ++i) {
        if (descriptors[i].revents != 0) {
            readable.push_back(numbers[i]);
        }
    }
    return readable;
}

std::optional<PollEventLoop::Time> PollEventLoop::FirstDue() const {
    std::optional<Time> first;
    for (const auto& [number, alarm] : alarms_) {
        if (alarm.at && (!first || *alarm.at < *first)) {
            first = alarm.at;
        }
    }
    return first;
}

// One that was delivered may have ended those behind it.
void PollEventLoop::DeliverReaders(const std::vector<std::uint64_t>& readable) {
    for (const std::uint64_t number : readable) {
        if (const auto found = watches_.find(number); found != watches_.end()) {
            const std::shared_ptr<const Action> action = found->second.action;
            RunGuarded(*action);
        }
    }
}

// Those that are set meanwhile wait for the next turn.
void PollEventLoop::DeliverAlarms() {
    const Time now = Clock::now();
    std::vector<std::uint64_t> due;
    for (const auto& [number, alarm] : alarms_) {
        if (alarm.at && *alarm.at <= now) {
            due.push_back(number);
        }
    }
    for (const std::uint64_t number : due) {
        const auto found = alarms_.find(number);
        if (found != alarms_.end() && found->second.at && *found->second.at <= now) {
            found->second.at.reset();
            const std::shared_ptr<const Action> action = found->second.action;
            RunGuarded(*action);
        }
    }
}

// The descriptor counts what is posted, so that a loop inside one of them goes on with those behind
// it. What they post themselves waits for the next turn.
void PollEventLoop::DeliverPosted() {
    eventfd_t one = 0;
    for (std::size_t left = PostedCount(); left > 0; --left) {
        if (::eventfd_read(wakeUp_.Number(), &one) != 0) {
            return;
        }
        RunGuarded(TakePosted());
    }
}

std::size_t PollEventLoop::PostedCount() {
    const std::lock_guard lock(mutex_);
    return posted_.size();
}

PollEventLoop::Action PollEventLoop::TakePosted() {
    const std::lock_guard lock(mutex_);
    Action first = std::move(posted_.front());
    posted_.pop_front();
    return first;
}

PollEventLoop::Reader::Reader(PollEventLoop& loop, int descriptor, Action onReadable)
    : loop_(loop), number_(loop.NextNumber()) {
    loop_.watches_[number_] = {descriptor, std::make_shared<const Action>(std::move(onReadable))};
}

PollEventLoop::Reader::~Reader() {
    loop_.watches_.erase(number_);
}

PollEventLoop::Alarm::Alarm(PollEventLoop& loop, Action onDue)
    : loop_(loop), number_(loop.NextNumber()) {
    loop_.alarms_[number_] = {std::nullopt, std::make_shared<const Action>(std::move(onDue))};
}

PollEventLoop::Alarm::~Alarm() {
    loop_.alarms_.erase(number_);
}

void PollEventLoop::Alarm::Set(nanoseconds delay) {
    loop_.alarms_.at(number_).at = Clock::now() + delay;
}

void PollEventLoop::Alarm::Stop() {
    loop_.alarms_.at(number_).at.reset();
}

}  // namespace horavex
