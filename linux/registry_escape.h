#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// Characters that get a backslash in the name of a value, where they would end it or make the
/// line something else.
inline constexpr std::string_view kMarkedInNames = "=@[#;";

/// A text as one line of a registry file: backslashes, line ends, blanks at both ends and the
/// marked characters get a backslash. UnescapeRegistryText gives the text back.
std::string EscapeRegistryText(std::string_view text, std::string_view marked = {});

/// A backslash before a character that needs none stands for itself.
std::string UnescapeRegistryText(std::string_view text);

}  // namespace horavex
