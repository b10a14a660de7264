#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace horavex {

/// Base name of the pack in use, as it stands in the file name; compared with other names in
/// lower case only. Written at start and by the language menu.
extern std::string currentLanguage;

/// True when the pack in use is Arabic, in any case. Some windows then arrange and word themselves
/// in Arabic.
bool IsArabicPack();

/// Flag: the language menu has seen a pack, so that forms translate themselves at their load.
/// Never cleared again.
extern std::int16_t languageFilesPresent;

/// Buffers that texts of a pack are read through, bytes with the closing zero: messages and
/// captions, and the short names that go to the face.
inline constexpr std::size_t kPackTextBuffer = 1024;
inline constexpr std::size_t kPackNameBuffer = 255;

/// Path of a pack in the program folder: "\lang\", the language and ".ini".
std::string LanguagePackPath(const std::string& language);

/// The value of a key in the pack of that path, or defaultText where the file, the section or the
/// key is missing. The value is cut to bufferSize - 1 bytes of the file's own encoding, never
/// inside a character. A pack that is valid UTF-8 is read as such; any other is Windows-1256 when
/// its base name is Arabic, in any case, else Windows-1252. The file is read anew on every call.
std::string ReadPackString(const std::string& packPath, const std::string& section,
                           const std::string& key, const std::string& defaultText,
                           std::size_t bufferSize);

/// The same of the current pack, whose path is made anew on every call.
std::string ReadPackString(const std::string& section, const std::string& key,
                           const std::string& defaultText, std::size_t bufferSize);

/// A message of the current pack: ReadPackString with kPackTextBuffer.
std::string GetLangString(const std::string& section, const std::string& key,
                          const std::string& defaultText);

/// Path of a file in the folder of the packs, inside the program folder: "\Lang\French.bmp".
std::string LanguageFilePath(const std::string& fileName);

/// Names in the folder of the packs whose last characters are the given suffix, its case ignored,
/// in the order of the listing. A missing folder is empty.
std::vector<std::string> ListLanguageFiles(const std::string& suffix);

/// The language of a pack's file: its name up to the first ".ini". Throws BoundsFault where that
/// is not there in small letters.
std::string LanguageOfFile(const std::string& fileName);

}  // namespace horavex
