#pragma once

#include <cstdint>
#include <string>

#include "base/code_page.h"

namespace horavex {

inline constexpr std::uint16_t kTextEntries = 96;  // the last one that the program asks for
inline constexpr std::int16_t kTextLanguages = 6;
inline constexpr std::int16_t kArabicColumn = 4;

/// True for 1 to 6, and for the 0 that is taken as 1.
constexpr bool IsTextLanguage(std::int16_t language) {
    return language >= 0 && language <= kTextLanguages;
}

/// The code page in which a column of the table is stored: Arabic in its own, others in Latin.
CodePage TextColumnCodePage(std::int16_t language);

/// The text of an entry (from 1) in a language column (1 to 6; 0 is taken as 1), from
/// "Dat/T.DAT" through "Dat/TI.DAT". Both files are opened on every call. An entry beyond the
/// index gives an empty text. Throws FileFault for a missing file, OverflowFault for a record
/// number beyond 16 bits, BoundsFault for a damaged index.
std::string TextItem(std::uint16_t entry, std::int16_t language);

}  // namespace horavex
