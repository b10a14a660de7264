#pragma once

#include <algorithm>
#include <string>

#include "base/bytes.h"

namespace horavex {

/// Takes an input apart from its beginning. Behind its end everything is zero or empty.
class FuzzInput {
public:
    explicit FuzzInput(ByteView bytes) : rest_(bytes) {}

    bool IsEmpty() const { return rest_.empty(); }

    ByteView TakeBytes(std::size_t count) {
        const ByteView taken = rest_.first(std::min(count, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }

    std::uint8_t TakeByte() {
        const ByteView taken = TakeBytes(1);
        return taken.empty() ? std::uint8_t{0} : taken.front();
    }

    std::int16_t TakeInt16() {
        const int low = TakeByte();
        return static_cast<std::int16_t>(low | (TakeByte() << 8));
    }

    double TakeFloat64() {
        Bytes bytes(sizeof(double));
        std::ranges::copy(TakeBytes(bytes.size()), bytes.begin());
        return GetFloat64(bytes, 0);
    }

    /// As many characters as the next byte says.
    std::string TakeText() {
        const std::size_t length = TakeByte();
        return StringOf(TakeBytes(length));
    }

    std::string TakeRest() { return StringOf(TakeBytes(rest_.size())); }

private:
    ByteView rest_;
};

}  // namespace horavex
