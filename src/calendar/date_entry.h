#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace horavex {

enum class Conversion { kToHijri, kToGregorian };

/// Converts a date that was entered. A day outside 1 to 31, a month outside 1 to 12 and a year
/// below 1 are refused with a message, and nothing comes back. Throws FileFault without the table
/// of months.
std::optional<std::string> ConvertDateEntry(Conversion conversion, std::int16_t year, int month,
                                            int day);

/// What the entry is checked by.
bool IsDateEntry(int year, int month, int day);

}  // namespace horavex
