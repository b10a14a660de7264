#include "linux/http_get.h"

#include <memory>
#include <string_view>

#include "base/text.h"
#include "linux/curl_library.h"

namespace horavex {

namespace {

constexpr const char* kProtocols = "http,https";
constexpr std::string_view kProtected = "https://";

constexpr long kMostRedirections = 5;

struct EasyCleanup {
    void operator()(CURL* transfer) const { curl::curl_easy_cleanup(transfer); }
};
using Transfer = std::unique_ptr<CURL, EasyCleanup>;

Transfer NewTransfer() {
    static const CURLcode ready = curl::curl_global_init(CURL_GLOBAL_DEFAULT);
    return Transfer(ready == CURLE_OK ? curl::curl_easy_init() : nullptr);
}

struct Body {
    Bytes bytes;
    std::size_t limit;
};

// Taking less than was offered ends the transfer as incomplete.
std::size_t TakeBlock(char* block, std::size_t, std::size_t count, void* body) {
    auto& [bytes, limit] = *static_cast<Body*>(body);
    if (bytes.size() + count > limit) {
        return 0;
    }
    bytes.insert(bytes.end(), block, block + count);
    return count;
}

bool Run(CURL* transfer, const std::string& address, long milliseconds, Body& body) {
    curl::curl_easy_setopt(transfer, CURLOPT_URL, address.c_str());
    curl::curl_easy_setopt(transfer, CURLOPT_USERAGENT, "Horavex");
    curl::curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, kProtocols);
    curl::curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, RedirectionsOf(address));
    curl::curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
    curl::curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, kMostRedirections);
    curl::curl_easy_setopt(transfer, CURLOPT_TIMEOUT_MS, milliseconds);
    // A name server that keeps silent is not waited for beyond that.
    curl::curl_easy_setopt(transfer, CURLOPT_QUICK_EXIT, 1L);
    curl::curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, TakeBlock);
    curl::curl_easy_setopt(transfer, CURLOPT_WRITEDATA, &body);
    return curl::curl_easy_perform(transfer) == CURLE_OK;
}

}  // namespace

const char* RedirectionsOf(const std::string& address) {
    const std::string_view scheme = std::string_view(address).substr(0, kProtected.size());
    return EqualsIgnoringCase(scheme, kProtected) ? "https" : kProtocols;
}

Bytes HttpGet(const std::string& address, const FetchLimits& limits) {
    const Transfer transfer = NewTransfer();
    Body body{{}, limits.bytes};
    if (transfer == nullptr || !Run(transfer.get(), address, limits.milliseconds, body)) {
        return {};
    }
    return body.bytes;
}

}  // namespace horavex
