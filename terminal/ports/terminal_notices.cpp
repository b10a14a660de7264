#include "terminal/ports/terminal_notices.h"

#include <utility>

namespace horavex {

TerminalNotices::TerminalNotices(PollEventLoop& loop, std::chrono::milliseconds betweenLooks)
    : BusNotices([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }),
      loop_(loop),
      betweenLooks_(betweenLooks),
      search_(loop, [this] {
          LookForBus();
          Follow();
      }) {
    Follow();
}

void TerminalNotices::Follow() {
    if (Descriptor() != -1) {
        reader_.emplace(loop_, Descriptor(), [this] { Hear(); });
    } else {
        search_.Set(betweenLooks_);
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
        search_.Set(betweenLooks_);
    }
}

}  // namespace horavex
