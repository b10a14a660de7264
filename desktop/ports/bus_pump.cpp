#include "desktop/ports/bus_pump.h"

namespace horavex {

BusPump::BusPump(SessionBroadcast& broadcast) : broadcast_(broadcast) {
    if (broadcast_.Descriptor() == -1) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(broadcast_.Descriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { Serve(); });
}

/// The descriptor of a bus that has ended would be ready for ever.
void BusPump::Serve() {
    broadcast_.Serve();
    if (broadcast_.Descriptor() == -1) {
        notifier_->setEnabled(false);
    }
}

}  // namespace horavex
