#pragma once

#include <string>

#include "linux/http_get.h"
#include "platform/network.h"

namespace horavex {

/// Network::GetSigned with limits of the caller's; the time is that of both fetches.
SignedBody HttpGetSigned(const std::string& address, const std::string& key,
                         const FetchLimits& limits);

}  // namespace horavex
