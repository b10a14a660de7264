#include "ctl/progress_line.h"

#include <unistd.h>

#include <iostream>

#include "platform/platform.h"

namespace horavex {

namespace {

constexpr double kPause = 0.25;  // seconds between two tellings
constexpr const char* kClearLine = "\r\x1b[K";

std::string Counted(std::uint64_t count, const char* what) {
    return count == 0 ? std::string() : ", " + std::to_string(count) + what;
}

}  // namespace

std::string TextOf(const LineCounts& counts) {
    return std::to_string(counts.lines) + (counts.lines == 1 ? " line" : " lines") +
           Counted(counts.gaveUp, " gave up") + Counted(counts.refused, " passed over");
}

ProgressLine::ProgressLine(bool isWanted)
    : isTerminal_(::isatty(STDERR_FILENO) != 0), isShown_(isWanted || isTerminal_) {}

void ProgressLine::Tell(const LineCounts& counts) {
    const double now = Ports().clock.SteadySeconds();
    if (isShown_ && (!told_ || now - *told_ >= kPause)) {
        told_ = now;
        Clear();
        std::cerr << TextOf(counts) << (isTerminal_ ? "" : "\n") << std::flush;
    }
}

void ProgressLine::Clear() const {
    if (isTerminal_) {
        std::cerr << kClearLine;
    }
}

void ProgressLine::End(const LineCounts& counts) const {
    if (isShown_) {
        Clear();
        std::cerr << TextOf(counts) << '\n';
    }
}

}  // namespace horavex
