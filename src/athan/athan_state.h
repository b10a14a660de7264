#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace horavex {

/// -1 while the athan window is up. The only thing that holds back a second athan in the ten
/// seconds of a prayer.
extern std::int16_t athanActive;

/// -1 while an alarm stands: from its arrival until its waits are over.
extern std::int16_t alarmActive;

/// -1 once the user has closed the alarm's message; shared with the export's cancel.
extern std::int16_t alarmDismissed;

/// Paths of the user's own sounds: 0 for Fajr, 1 for the other prayers; empty for none.
extern std::array<std::string, 2> customAthanFiles;

/// Reads both paths from the registry.
void LoadCustomAthanFiles();

}  // namespace horavex
