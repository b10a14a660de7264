#include "desktop/ports/bus_signal.h"

#include "platform/fault_box.h"

namespace horavex {

void BusSignal::Arrive(const QDBusMessage& message) {
    RunGuarded([&] { take_(message); });
}

}  // namespace horavex
