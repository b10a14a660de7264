#include "terminal/ports/terminal_session_watch.h"

#include <utility>

namespace horavex {

TerminalSessionWatch::TerminalSessionWatch(PollEventLoop& loop)
    : SleepWatch([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }) {
    if (Descriptor() == -1) {
        return;
    }
    reader_.emplace(loop, Descriptor(), [this] {
        Serve();
        if (Descriptor() == -1) {
            reader_.reset();  // it would be ready for ever
        }
    });
}

}  // namespace horavex
