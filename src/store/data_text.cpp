#include "store/data_text.h"

#include <algorithm>

namespace horavex {

namespace {

std::uint8_t DecodeByte(std::uint8_t code) {
    if (code >= 1 && code <= 127) {
        return static_cast<std::uint8_t>(code + 127);
    }
    if (code >= 128 && code <= 254) {
        return static_cast<std::uint8_t>(code - 127);
    }
    return code;
}

}  // namespace

Bytes DecodeText(ByteView stored) {
    Bytes text(stored.size());
    std::transform(stored.begin(), stored.end(), text.begin(), DecodeByte);
    return text;
}

}  // namespace horavex
