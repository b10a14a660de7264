#pragma once

#include <sys/types.h>

#include <ctime>
#include <optional>

namespace horavex {

/// What a command that follows something sleeps on: what it follows, an instant of the wall clock,
/// and its own end, by a signal or because nobody reads its output any more. Nothing ticks
/// meanwhile. From its making on SIGINT, SIGTERM and SIGHUP are taken here, and SIGPIPE is not
/// heeded.
class FollowWait {
public:
    FollowWait();
    ~FollowWait();
    FollowWait(const FollowWait&) = delete;
    FollowWait& operator=(const FollowWait&) = delete;

    enum class Woken {
        kNews,   // the descriptor can be read from
        kClock,  // the instant has come, or the clock was set anew meanwhile
        kEnd,
    };

    /// Sleeps until one of these. Without an instant the clock wakes nobody.
    Woken For(int descriptor, std::optional<std::time_t> instant) const;

private:
    void SetTimer(std::optional<std::time_t> instant) const;

    int signals_;
    int timer_;
};

/// True once the standard output is a pipe, or the like, whose reader has gone. What was not
/// written by then is dropped in silence.
bool ReaderHasGone();

}  // namespace horavex
