#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// A script by its place in a table; the same for two texts of one script.
using Script = int;

/// Letters that every pack and every name of a place has.
inline constexpr Script kLatinScript = 0;

/// The script of a text's first letter beyond Latin, which decides: a Latin word may stand in any
/// text. Latin where there is none, for a script that is not known here and for broken UTF-8.
Script ScriptOf(std::string_view text);

/// A part of a line that keeps its order: marked off where the words around it are of another
/// script, which may run from right to left.
std::string KeptTogether(const std::string& part, std::string_view words);

}  // namespace horavex
