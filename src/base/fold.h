#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// A text for comparing as people search: small letters, accents and vowel points taken off,
/// ligatures written out, curved quotes made straight, Arabic letters that are written for each
/// other made one. Latin, Greek, Cyrillic, Armenian, Hebrew and Arabic letters fold, all others
/// stay as they are.
std::string FoldForSearch(std::string_view text);

}  // namespace horavex
