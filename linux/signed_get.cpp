#include "linux/signed_get.h"

#include <chrono>

#include "linux/minisign.h"

namespace horavex {

namespace {

long MillisecondsSince(std::chrono::steady_clock::time_point start) {
    using std::chrono::milliseconds;
    const auto passed = std::chrono::steady_clock::now() - start;
    return static_cast<long>(std::chrono::duration_cast<milliseconds>(passed).count());
}

}  // namespace

SignedBody HttpGetSigned(const std::string& address, const std::string& key,
                         const FetchLimits& limits) {
    const auto start = std::chrono::steady_clock::now();
    const Bytes body = HttpGet(address, limits);
    const long left = limits.milliseconds - MillisecondsSince(start);
    if (body.empty() || left <= 0) {
        return {body, false};
    }
    const Bytes signature = HttpGet(address + ".minisig", {left, limits.bytes});
    return {body, IsMinisigned(body, StringOf(signature), key)};
}

}  // namespace horavex
