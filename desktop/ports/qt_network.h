#pragma once

#include "linux/system_network.h"

namespace horavex {

/// The system's network. A fetch blocks the thread and the windows with it: what they have to tell
/// is painted before.
class QtNetwork : public SystemNetwork {
public:
    Bytes Get(const std::string& address) override;
    SignedBody GetSigned(const std::string& address, const std::string& key) override;
};

}  // namespace horavex
