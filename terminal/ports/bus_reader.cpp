#include "terminal/ports/bus_reader.h"

namespace horavex {

BusReader::BusReader(PollEventLoop& loop, SessionBroadcast& broadcast)
    : loop_(loop), broadcast_(broadcast) {
    broadcast_.onDescriptor = [this] { Follow(); };
    Follow();
}

BusReader::~BusReader() {
    broadcast_.onDescriptor = nullptr;
}

/// The descriptor of a bus that has ended would be ready for ever.
void BusReader::Follow() {
    reader_.reset();
    if (const int descriptor = broadcast_.Descriptor(); descriptor != -1) {
        reader_.emplace(loop_, descriptor, [this] { broadcast_.Serve(); });
    }
}

}  // namespace horavex
