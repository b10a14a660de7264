#include "terminal/ports/bus_reader.h"

namespace horavex {

BusReader::BusReader(PollEventLoop& loop, SessionBroadcast& broadcast) : broadcast_(broadcast) {
    if (broadcast_.Descriptor() != -1) {
        reader_.emplace(loop, broadcast_.Descriptor(), [this] { Serve(); });
    }
}

/// The descriptor of a bus that has ended would be ready for ever.
void BusReader::Serve() {
    broadcast_.Serve();
    if (broadcast_.Descriptor() == -1) {
        reader_.reset();
    }
}

}  // namespace horavex
