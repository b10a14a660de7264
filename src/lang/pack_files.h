#pragma once

#include <string>
#include <vector>

namespace horavex {

/// Path of a file in the folder of the packs, inside the program folder: "\Lang\French.bmp".
std::string LanguageFilePath(const std::string& fileName);

/// Names in the folder of the packs whose last characters are the given suffix, its case ignored,
/// in the order of the listing. A missing folder is empty.
std::vector<std::string> ListLanguageFiles(const std::string& suffix);

/// The language of a pack's file: its name up to the first ".ini". Throws BoundsFault where that
/// is not there in small letters.
std::string LanguageOfFile(const std::string& fileName);

}  // namespace horavex
