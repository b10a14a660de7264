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

    ConnectionState connection{false, 0};
    std::vector<std::string> requests;
    std::function<std::string()> answer;
};

}  // namespace horavex
