#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace horavex::bench {

// What the moon's tables and the lists of eclipses cost at least: the same formulas in the same
// order, without strings, checks and state, written into memory that the caller has. Byte for byte
// the texts of moon/phase_rows.h and moon/eclipses.h. zone: whole hours.

/// Room for all rows of a year.
inline constexpr std::size_t kMoonRoom = 4096;

/// The four tables of a year, new moons first, each row with a line feed behind it.
std::string_view FloorMoonTables(std::int16_t year, double zone, std::span<char, kMoonRoom> room);

/// The two lists of a year, the Sun's first, each row with CR LF behind it. The geometry that
/// classifies each eclipse is worked out too; its size is added to classified.
std::string_view FloorEclipseLists(std::int16_t year, double zone, std::span<char, kMoonRoom> room,
                                   double& classified);

}  // namespace horavex::bench
