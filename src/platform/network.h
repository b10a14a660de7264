#pragma once

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
};

}  // namespace horavex
