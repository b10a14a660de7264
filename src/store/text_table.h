#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/code_page.h"
#include "store/text_entry.h"

namespace horavex {

inline constexpr std::int16_t kTextLanguages = 6;
inline constexpr std::int16_t kArabicColumn = 4;

/// True for 1 to 6, and for the 0 that is taken as 1.
constexpr bool IsTextLanguage(std::int16_t language) {
    return language >= 0 && language <= kTextLanguages;
}

/// The code page in which a column of the table is stored: Arabic in its own, others in Latin.
CodePage TextColumnCodePage(std::int16_t language);

/// The name of a prayer, by index: the six stand one after another.
constexpr TextEntry PrayerNameEntry(std::size_t prayer) {
    return TextEntry{
        static_cast<std::uint16_t>(static_cast<std::size_t>(TextEntry::kFajr) + prayer)};
}

/// The text of an entry in a language column (1 to 6; 0 is taken as 1), from
/// "Dat/T.DAT" through "Dat/TI.DAT". Both files are opened on every call. An entry
/// beyond the index, which has no name, gives an empty text. Throws FileFault for a missing file,
/// OverflowFault for a record number beyond 16 bits, BoundsFault for a damaged index.
std::string TextItem(TextEntry entry, std::int16_t language);

}  // namespace horavex
