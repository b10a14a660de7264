#pragma once

#include <string>
#include <string_view>

namespace horavex {

// Texts of packs, tables and users hold any character, and control characters tell a terminal what
// to do: those below the blank, the delete character and U+0080 to U+009F.

/// The text without control characters but tabs, ends of lines and form feeds.
std::string WithoutControls(std::string_view text);

/// JSON in which those that it may hold as they are stand as escapes.
std::string WithEscapedControls(std::string_view json);

}  // namespace horavex
