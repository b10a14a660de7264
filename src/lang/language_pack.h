#pragma once

#include <cstddef>
#include <string>

namespace horavex {

/// Base name of the pack in use, as it stands in the file name; compared with other names in
/// lower case only. Written at start and by the language menu.
extern std::string currentLanguage;

/// Path of a pack in the program folder: "\lang\", the language and ".ini".
std::string LanguagePackPath(const std::string& language);

/// The value of a key in the current pack, or defaultText where the file, the section or the key
/// is missing. The value is cut to bufferSize - 1 bytes of the file's own encoding, never inside
/// a character. A pack that is valid UTF-8 is read as such; any other is Windows-1256 when its
/// language is Arabic, else Windows-1252. The file is read anew on every call.
std::string ReadPackString(const std::string& section, const std::string& key,
                           const std::string& defaultText, std::size_t bufferSize);

/// ReadPackString with the buffer of messages, 1024 bytes.
std::string GetLangString(const std::string& section, const std::string& key,
                          const std::string& defaultText);

}  // namespace horavex
