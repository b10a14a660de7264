#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/network.h"

namespace horavex {

/// Tells what it was told.
class ScriptedNetwork : public Network {
public:
    ConnectionState Connection() override { return connection; }

    /// Writes the address down and asks answer; without one the body is empty.
    Bytes Get(const std::string& address) override {
        requests.push_back(address);
        return answer ? BytesOf(answer()) : Bytes();
    }

    /// Writes key and address down, and asks answer and isSigned.
    SignedBody GetSigned(const std::string& address, const std::string& key) override {
        return {Get(key + " " + address), isSigned};
    }

    ConnectionState connection{false, 0};
    std::vector<std::string> requests;
    std::function<std::string()> answer;
    bool isSigned = false;
};

}  // namespace horavex
