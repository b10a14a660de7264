#pragma once

#include <string>

#include "base/bytes.h"

namespace horavex {

/// Bits that tell how the machine is connected.
enum ConnectionFlag : unsigned {
    kModemConnection = 1,
    kLanConnection = 2,
    kProxyConnection = 4,
    kModemBusy = 8,
    kRasInstalled = 16,
    kConnectionOffline = 32,
    kConnectionConfigured = 64,
};

struct ConnectionState {
    bool isConnected;
    unsigned flags;  // sum of ConnectionFlag bits, told whether connected or not
};

/// The network of the machine.
class Network {
public:
    virtual ~Network() = default;

    /// Asked afresh at every call, without any traffic. Never fails.
    virtual ConnectionState Connection() = 0;

    /// The body of what lies at an address of the web, an error page's as well as any other.
    /// Blocks the thread, 8 seconds at most in all. Empty for a transfer that is refused or not
    /// complete, one of more than 64 KiB, and an address or a redirection that is neither http
    /// nor https, or that leads from https to http. Never fails.
    virtual Bytes Get(const std::string& address) = 0;
};

}  // namespace horavex
