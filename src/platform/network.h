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

/// What lies at an address, and whether its maker has signed it.
struct SignedBody {
    Bytes bytes;
    bool isSigned;
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

    /// The same, with the signature that lies at the address with ".minisig" behind it. It counts
    /// where it is one of the tool minisign by that key over that very body; key is what the tool
    /// prints of the public one. Both are there after 8 seconds, or the signature is none; it is
    /// not asked for where the body is empty.
    virtual SignedBody GetSigned(const std::string& address, const std::string& key) = 0;
};

}  // namespace horavex
