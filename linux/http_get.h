#pragma once

#include <cstddef>
#include <string>

#include "base/bytes.h"

namespace horavex {

/// Where a fetch gives up.
struct FetchLimits {
    long milliseconds = 15'000;     // in all: name, connection, redirections and body
    std::size_t bytes = 64 * 1024;  // of the body
};

/// Network::Get with limits of the caller's.
Bytes HttpGet(const std::string& address, const FetchLimits& limits);

}  // namespace horavex
