#include "linux/minisign.h"

#include <sodium.h>

#include <optional>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace horavex {

namespace {

constexpr std::string_view kUntrusted = "untrusted comment: ";
constexpr std::string_view kTrusted = "trusted comment: ";
constexpr std::string_view kKeyKind = "Ed";
constexpr std::string_view kHashedKind = "ED";  // of a signature over the file's BLAKE2b
constexpr std::size_t kKindBytes = 2;
constexpr std::size_t kIdentityBytes = 8;  // tells keys apart, chosen at random with each

/// The bytes of a text in base64 if it is whole and has that many.
std::optional<Bytes> Decoded(std::string_view text, std::size_t count) {
    Bytes bytes(count);
    std::size_t taken = 0;
    const char* end = nullptr;
    const bool isWhole =
        sodium_base642bin(bytes.data(), bytes.size(), text.data(), text.size(), nullptr, &taken,
                          &end, sodium_base64_VARIANT_ORIGINAL) == 0 &&
        taken == count && end == text.data() + text.size();
    return isWhole ? std::optional(bytes) : std::nullopt;
}

/// A key or a signature with whose it is.
struct Marked {
    std::string identity;
    Bytes bytes;
};

std::optional<Marked> MarkedOf(std::string_view text, std::string_view kind, std::size_t count) {
    const auto all = Decoded(text, kKindBytes + kIdentityBytes + count);
    if (!all || !StringOf(*all).starts_with(kind)) {
        return std::nullopt;
    }
    return Marked{StringOf(*all).substr(kKindBytes, kIdentityBytes),
                  Bytes(all->end() - static_cast<std::ptrdiff_t>(count), all->end())};
}

bool Signs(const Bytes& signature, const Bytes& message, const Bytes& key) {
    return crypto_sign_verify_detached(signature.data(), message.data(), message.size(),
                                       key.data()) == 0;
}

Bytes HashOf(const Bytes& file) {
    Bytes hash(crypto_generichash_BYTES_MAX);
    crypto_generichash(hash.data(), hash.size(), file.data(), file.size(), nullptr, 0);
    return hash;
}

/// The four lines of a signature; nothing where there are other ones.
std::optional<std::vector<std::string>> LinesOf(const std::string& signature) {
    std::vector<std::string> lines = Split(signature, '\n');
    if (!lines.empty() && lines.back().empty()) {
        lines.pop_back();
    }
    if (lines.size() != 4 || !lines[0].starts_with(kUntrusted) || !lines[2].starts_with(kTrusted)) {
        return std::nullopt;
    }
    return lines;
}

}  // namespace

bool IsMinisigned(const Bytes& file, const std::string& signature, const std::string& key) {
    static const bool isReady = sodium_init() >= 0;
    const auto lines = LinesOf(signature);
    const auto signer = MarkedOf(key, kKeyKind, crypto_sign_PUBLICKEYBYTES);
    if (!isReady || !lines || !signer) {
        return false;
    }
    const auto first = MarkedOf((*lines)[1], kHashedKind, crypto_sign_BYTES);
    const auto second = Decoded((*lines)[3], crypto_sign_BYTES);
    if (!first || !second || first->identity != signer->identity) {
        return false;
    }
    const std::string comment = (*lines)[2].substr(kTrusted.size());
    return Signs(first->bytes, HashOf(file), signer->bytes) &&
           Signs(*second, BytesOf(StringOf(first->bytes) + comment), signer->bytes);
}

}  // namespace horavex
