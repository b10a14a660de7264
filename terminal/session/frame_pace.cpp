#include "terminal/session/frame_pace.h"

#include <algorithm>
#include <utility>

namespace horavex {

using Clock = std::chrono::steady_clock;

FramePace::FramePace(PollEventLoop& loop, std::chrono::nanoseconds least)
    : least_(least), drawn_(Clock::now() - least), alarm_(loop, [this] { Draw(); }) {}

void FramePace::Later(PollEventLoop::Action draw) {
    draw_ = std::move(draw);
    alarm_.Set(std::max(std::chrono::nanoseconds(0), least_ - (Clock::now() - drawn_)));
}

void FramePace::Draw() {
    drawn_ = Clock::now();
    draw_();
}

}  // namespace horavex
