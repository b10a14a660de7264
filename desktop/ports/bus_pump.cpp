#include "desktop/ports/bus_pump.h"

namespace horavex {

BusPump::BusPump(SessionBroadcast& broadcast) : broadcast_(broadcast) {
    broadcast_.onDescriptor = [this] { Follow(); };
    Follow();
}

BusPump::~BusPump() {
    broadcast_.onDescriptor = nullptr;
}

// The descriptor of a bus that has ended would be ready for ever. Its notifier may just be at work.
void BusPump::Follow() {
    if (notifier_ != nullptr) {
        notifier_->setEnabled(false);
        notifier_.release()->deleteLater();
    }
    if (const int descriptor = broadcast_.Descriptor(); descriptor != -1) {
        notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                         [this] { broadcast_.Serve(); });
    }
}

}  // namespace horavex
