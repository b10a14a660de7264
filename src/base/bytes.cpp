#include "base/bytes.h"

#include <bit>

namespace horavex {

namespace {

std::uint64_t GetLittleEndian(ByteView bytes, std::size_t offset, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
        value |= std::uint64_t{bytes[offset + i]} << (8 * i);
    }
    return value;
}

void PutLittleEndian(std::span<std::uint8_t> bytes, std::size_t offset, std::size_t width,
                     std::uint64_t value) {
    for (std::size_t i = 0; i < width; ++i) {
        bytes[offset + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

}  // namespace

std::int16_t GetInt16(ByteView bytes, std::size_t offset) {
    return static_cast<std::int16_t>(GetLittleEndian(bytes, offset, 2));
}

std::int32_t GetInt32(ByteView bytes, std::size_t offset) {
    return static_cast<std::int32_t>(GetLittleEndian(bytes, offset, 4));
}

double GetFloat64(ByteView bytes, std::size_t offset) {
    return std::bit_cast<double>(GetLittleEndian(bytes, offset, 8));
}

void PutInt16(std::span<std::uint8_t> bytes, std::size_t offset, std::int16_t value) {
    PutLittleEndian(bytes, offset, 2, static_cast<std::uint16_t>(value));
}

void PutInt32(std::span<std::uint8_t> bytes, std::size_t offset, std::int32_t value) {
    PutLittleEndian(bytes, offset, 4, static_cast<std::uint32_t>(value));
}

void PutFloat64(std::span<std::uint8_t> bytes, std::size_t offset, double value) {
    PutLittleEndian(bytes, offset, 8, std::bit_cast<std::uint64_t>(value));
}

Bytes BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string StringOf(ByteView bytes) {
    return std::string(TextIn(bytes));
}

std::string_view TextIn(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace horavex
