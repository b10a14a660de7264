#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// A text for comparing as people search: small letters, accents and vowel points taken off,
/// ligatures written out, curved quotes made straight, Arabic letters that are written for each
/// other made one. Latin, Greek, Cyrillic, Armenian, Hebrew and Arabic letters fold, all others
/// stay as they are, and so does a byte that is no part of a character.
std::string FoldForSearch(std::string_view text);

/// Takes the first character off a text, which has some, and tells what it folds to: none, one or
/// more characters, which live as long as the text.
std::string_view TakeFolded(std::string_view& text);

}  // namespace horavex
