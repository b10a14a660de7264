#pragma once

#include <cstddef>
#include <string>

#include "base/bytes.h"

namespace horavex {

/// Where a fetch gives up.
struct FetchLimits {
    /// In all: name, connection, redirections and body. A prayer's ten seconds outlast it, so that
    /// none passes by under a fetch.
    long milliseconds = 8'000;
    std::size_t bytes = std::size_t{64} * 1024;  // of the body
};

/// The protocols that an address may be redirected to, with commas between: what began protected
/// stays so.
const char* RedirectionsOf(const std::string& address);

/// Network::Get with limits of the caller's.
Bytes HttpGet(const std::string& address, const FetchLimits& limits);

}  // namespace horavex
