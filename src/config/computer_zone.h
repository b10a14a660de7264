#pragma once

#include <cstdint>

#include "base/date.h"

namespace horavex {

/// What the computer's own time zone says about a year.
struct ComputerZone {
    double hours = 0.0;         // east of Greenwich, without the daylight hour
    bool daylight = false;      // the year has days of daylight saving
    std::int16_t dstStart = 0;  // 1-based days of the year, both included; DstStart above DstEnd
    std::int16_t dstEnd = 0;    // where the days go over the turn of the year

    bool operator==(const ComputerZone&) const = default;
};

/// Asks the clock for the year of a day. Daylight saving counts where it moves the clock by the
/// one hour that the engine knows, from whichever side the zone's data see it; a zone with any
/// other change gives the offset of that day and no daylight saving.
ComputerZone FindComputerZone(Date today);

/// Fills the settings window's zone box and daylight controls from the computer's zone.
void UseComputerZone();

}  // namespace horavex
