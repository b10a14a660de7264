#include "terminal/ports/terminal_notices.h"

#include <utility>

namespace horavex {

TerminalNotices::TerminalNotices(PollEventLoop& loop)
    : BusNotices([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }) {
    if (Descriptor() != -1) {
        reader_.emplace(loop, Descriptor(), [this] { Hear(); });
    }
}

void TerminalNotices::Leave() {
    Withdraw(NoticeKind::kAthan);
    Withdraw(NoticeKind::kPrayer);
    Withdraw(NoticeKind::kMissed);
}

/// The descriptor of a bus that has ended would be ready for ever.
void TerminalNotices::Hear() {
    Serve();
    if (Descriptor() == -1) {
        reader_.reset();
    }
}

}  // namespace horavex
