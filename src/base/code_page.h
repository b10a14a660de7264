#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/bytes.h"

namespace horavex {

/// The single-byte code pages of files. Inside the program every text is UTF-8.
enum class CodePage { kWindows1252, kWindows1256 };

/// Every byte has a character: the five codes that Windows-1252 leaves free stand for the
/// control characters of the same number, as the platform's own tables have it.
std::string DecodeCodePage(ByteView bytes, CodePage page);

/// Nothing when the text is no UTF-8 or holds a character that the page lacks.
std::optional<Bytes> EncodeCodePage(std::string_view text, CodePage page);

}  // namespace horavex
