#pragma once

#include <cstdint>

#include "base/date.h"

namespace horavex {

/// Days of daylight saving that the default button proposes.
struct DstDays {
    std::int16_t first;   // 1-based day of the first Saturday of April or after it
    std::int16_t second;  // one less than the 1-based day of the last Sunday of October
};

/// Both for the year of the given day, as the northern hemisphere has them.
DstDays DefaultDstDays(Date today);

/// Puts the days into Settings, the other way round for a latitude below 0 (stored hundredths).
void SetDefaultDstDays(Date today, std::int16_t latitude);

/// The default button's values for the working settings: everything but IshaAngle, Language,
/// CityIndex and TimeZone. Fajr takes the default angle of AngleBand.
void ApplyDefaultSettings(Date today);

}  // namespace horavex
