#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// A run of bytes as a file holds it; never text until a code page says so.
using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

/// Little-endian fields at a 0-based offset. The caller has checked that the bytes are there.
std::int16_t GetInt16(ByteView bytes, std::size_t offset);
std::int32_t GetInt32(ByteView bytes, std::size_t offset);
double GetFloat64(ByteView bytes, std::size_t offset);

void PutInt16(std::span<std::uint8_t> bytes, std::size_t offset, std::int16_t value);
void PutInt32(std::span<std::uint8_t> bytes, std::size_t offset, std::int32_t value);
void PutFloat64(std::span<std::uint8_t> bytes, std::size_t offset, double value);

/// The characters of a text as bytes and back, unchanged.
Bytes BytesOf(const std::string& text);
std::string StringOf(ByteView bytes);

/// The characters where they are.
std::string_view TextIn(ByteView bytes);

}  // namespace horavex
