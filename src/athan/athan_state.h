#pragma once

#include <cstdint>

namespace horavex {

/// -1 while the athan window is up. The only thing that holds back a second athan in the ten
/// seconds of a prayer.
extern std::int16_t athanActive;

/// -1 while an alarm stands: from its arrival until its waits are over.
extern std::int16_t alarmActive;

/// -1 once the user has closed the alarm's message; shared with the export's cancel.
extern std::int16_t alarmDismissed;

}  // namespace horavex
