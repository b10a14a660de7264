#pragma once

#include <array>

namespace horavex {

/// The six fixed English spellings, by prayer index. The settings window and the export show
/// them whatever the language; they differ from the spellings of the texts on purpose.
inline constexpr std::array<const char*, 6> prayerNames = {"Fajr", "Shurooq", "Thuhr",
                                                           "Asr",  "Maghrib", "Ishaa"};

}  // namespace horavex
