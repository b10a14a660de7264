#include "ctl/follow_wait.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <iostream>

namespace horavex {

namespace {

sigset_t EndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    return signals;
}

int TakeSignals() {
    const sigset_t signals = EndSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

/// Reads nothing: an output tells by itself that it has gone.
constexpr pollfd kOutput{STDOUT_FILENO, 0, 0};

}  // namespace

FollowWait::FollowWait()
    : signals_(TakeSignals()), timer_(timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK)) {}

FollowWait::~FollowWait() {
    close(timer_);
    close(signals_);
}

FollowWait::Woken FollowWait::For(int descriptor, std::optional<std::time_t> instant) const {
    SetTimer(instant);
    std::array<pollfd, 4> all = {
        {{descriptor, POLLIN, 0}, {timer_, POLLIN, 0}, {signals_, POLLIN, 0}, kOutput}};
    poll(all.data(), all.size(), -1);
    if (all[2].revents != 0 || all[3].revents != 0) {
        return Woken::kEnd;
    }
    return all[1].revents != 0 ? Woken::kClock : Woken::kNews;
}

// Setting it anew takes what it has told. One that is stopped would tell of a clock set anew, too,
// if it were asked for that.
void FollowWait::SetTimer(std::optional<std::time_t> instant) const {
    itimerspec time{};
    time.it_value.tv_sec = instant.value_or(0);  // 0 stops it
    const int flags = instant ? TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET : 0;
    timerfd_settime(timer_, flags, &time, nullptr);
}

bool ReaderHasGone() {
    pollfd output = kOutput;
    poll(&output, 1, 0);
    if (output.revents == 0) {
        return false;
    }
    if (const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC); nothing != -1) {
        dup2(nothing, STDOUT_FILENO);
        close(nothing);
    }
    std::cout.clear();
    return true;
}

}  // namespace horavex
