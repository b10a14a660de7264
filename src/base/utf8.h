#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace horavex {

/// Appends one code point, 0 to 0x10FFFF without surrogates, as UTF-8.
void AppendUtf8(std::string& text, char32_t codePoint);

/// Takes the first character off a text, which has some; nothing, and the text as it was, where
/// that is malformed.
std::optional<char32_t> TakeCodePoint(std::string_view& text);

/// The code points of a text; nothing when it is no well-formed UTF-8.
std::optional<std::u32string> DecodeUtf8(std::string_view text);

bool IsUtf8(std::string_view text);

/// How many characters a text has. A stray byte counts as a part of the character before it.
std::size_t Utf8Length(std::string_view text);

/// The first characters of a text, all of them where it has fewer.
std::string_view Utf8FirstCharacters(std::string_view text, std::size_t count);

/// The longest beginning of at most maxBytes bytes that does not split a character.
std::string_view Utf8Prefix(std::string_view text, std::size_t maxBytes);

}  // namespace horavex
