#include "config/computer_zone.h"

#include <cmath>
#include <vector>

#include "config/automatic_zone.h"
#include "config/zone_controls.h"
#include "platform/platform.h"

namespace horavex {

namespace {

ZoneOffset OffsetOn(Date day) {
    const ClockOffset offset = Ports().clock.OffsetOn(day);
    return {static_cast<std::int32_t>(std::lround(offset.hours * 3600.0)), offset.daylight};
}

}  // namespace

ZoneYear FindComputerZone(Date today) {
    const int year = CivilFromDate(today).year;
    const Date first = DateSerial(year, 1, 1);
    std::vector<ZoneOffset> offsets;
    for (Date day = first; day < DateSerial(year + 1, 1, 1); day += 1.0) {
        offsets.push_back(OffsetOn(day));
    }
    return ZoneYearOf(offsets, static_cast<std::size_t>(today - first));
}

// The computer's zone is the user's choice in the place of the city's.
void UseComputerZone() {
    FillZoneControls(FindComputerZone(Ports().clock.Today()));
    ZoneWasEdited();
}

}  // namespace horavex
