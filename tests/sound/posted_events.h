#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

#include "linux/sound/pulse_player.h"

namespace horavex {

/// The event loop of a program, by hand.
class PostedEvents {
public:
    PulsePlayer::Post Post() {
        return [this](std::function<void()> event) {
            {
                const std::lock_guard lock(mutex_);
                events_.push_back(std::move(event));
            }
            arrived_.notify_one();
        };
    }

    /// Delivers events until the test is true. False if nothing arrives for ten seconds.
    bool RunUntil(const std::function<bool()>& test) {
        while (!test()) {
            std::unique_lock lock(mutex_);
            if (!arrived_.wait_for(lock, std::chrono::seconds(10),
                                   [this] { return !events_.empty(); })) {
                return false;
            }
            DeliverFirst(lock);
        }
        return true;
    }

    /// Delivers events as they come, as long as the test is true.
    void RunWhile(const std::function<bool()>& test) {
        while (test()) {
            std::unique_lock lock(mutex_);
            if (arrived_.wait_for(lock, std::chrono::milliseconds(10),
                                  [this] { return !events_.empty(); })) {
                DeliverFirst(lock);
            }
        }
    }

private:
    void DeliverFirst(std::unique_lock<std::mutex>& lock) {
        const auto event = std::move(events_.front());
        events_.pop_front();
        lock.unlock();
        event();
    }

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<std::function<void()>> events_;
};

}  // namespace horavex
