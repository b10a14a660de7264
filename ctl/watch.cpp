#include "ctl/watch.h"

#include <csignal>
#include <ctime>
#include <iostream>

namespace horavex {

namespace {

constexpr const char* kEnter = "\x1b[?1049h\x1b[?25l";  // second screen, no cursor
constexpr const char* kLeave = "\x1b[?25h\x1b[?1049l";
constexpr const char* kHome = "\x1b[H";
constexpr const char* kClearLineEnd = "\x1b[K\n";
constexpr const char* kClearBelow = "\x1b[J";

volatile std::sig_atomic_t stopped = 0;

void Stop(int) {
    stopped = 1;
}

void StopOnSignals() {
    struct sigaction action {};
    action.sa_handler = Stop;  // without SA_RESTART, so that the wait below ends too
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

/// The terminal's second screen, without a cursor, as long as it lives.
class SecondScreen {
public:
    SecondScreen() { std::cout << kEnter; }
    ~SecondScreen() { std::cout << kLeave << std::flush; }
    SecondScreen(const SecondScreen&) = delete;
    SecondScreen& operator=(const SecondScreen&) = delete;
};

/// Sleeps to the next whole second of the wall clock; a signal ends it early.
void RestToWholeSecond() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const timespec next{now.tv_sec + 1, 0};
    clock_nanosleep(CLOCK_REALTIME, TIMER_ABSTIME, &next, nullptr);
}

/// Overwrites the former frame line by line, so that nothing flickers.
std::string InPlace(const std::string& frame) {
    std::string text = kHome;
    for (const char c : frame) {
        text += c == '\n' ? std::string(kClearLineEnd) : std::string(1, c);
    }
    return text + kClearBelow;
}

}  // namespace

void WatchInTerminal(const std::function<std::string()>& frame) {
    StopOnSignals();
    const SecondScreen screen;
    while (stopped == 0 && std::cout) {
        std::cout << InPlace(frame()) << std::flush;
        RestToWholeSecond();
    }
}

}  // namespace horavex
