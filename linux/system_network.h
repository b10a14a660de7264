#pragma once

#include <string>

#include "linux/signed_get.h"
#include "platform/network.h"

namespace horavex {

/// Makes the state of the connection up from the system's routes and interfaces and from the
/// proxy variables of the environment. The machine is connected when it has a default route. No
/// system tells that a modem is busy with something else, so that this bit is never set.
class SystemNetwork : public Network {
public:
    /// root: the folder that holds proc, sys and usr.
    explicit SystemNetwork(std::string root = "") : root_(std::move(root)) {}

    ConnectionState Connection() override;
    Bytes Get(const std::string& address) override { return HttpGet(address, FetchLimits()); }
    SignedBody GetSigned(const std::string& address, const std::string& key) override {
        return HttpGetSigned(address, key, FetchLimits());
    }

private:
    std::string root_;
};

}  // namespace horavex
