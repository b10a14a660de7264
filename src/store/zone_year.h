#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/date.h"
#include "platform/zone_rules.h"
#include "store/settings_record.h"

namespace horavex {

/// A zone's clock in a year, as far as the settings record can hold it.
struct ZoneYear {
    double hours = 0.0;         // east of Greenwich, without the daylight hour, above -12 to 12
    bool daylight = false;      // the year has days of daylight saving
    std::int16_t dstStart = 0;  // 1-based days of the year, both included; dstStart above dstEnd
    std::int16_t dstEnd = 0;    // where the days go over the turn of the year

    bool operator==(const ZoneYear&) const = default;
};

/// Of the offsets at noon of each day of a year. Daylight saving counts where it moves the clock by
/// the one hour that the engine knows, from whichever side the zone's data see it; of two spans in
/// a year the first one. A year with any other change gives the offset of one day (0-based) and no
/// daylight saving. A zone beyond 12 hours east counts 24 hours lower, which reads the same on the
/// clock.
ZoneYear ZoneYearOf(const std::vector<ZoneOffset>& offsets, std::size_t day);

/// Of the year of a day in a zone of the database. Throws UnknownZoneFault.
ZoneYear FindZoneYear(const ZoneRules& rules, const std::string& zone, Date day);

/// Writes what a record holds of a zone. Without daylight saving its days stay as they are.
void TakeZoneYear(const ZoneYear& zone, SettingsRecord& record);

}  // namespace horavex
