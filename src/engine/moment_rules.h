#pragma once

#include <array>
#include <bitset>
#include <vector>

#include "base/date.h"
#include "engine/year_calculation.h"
#include "store/options.h"

namespace horavex {

/// A zone's clock from an instant on, until the next span begins.
struct ZoneSpan {
    Date from = 0.0;     // Universal Time
    double hours = 0.0;  // east of Greenwich, daylight hour and all
    bool daylight = false;

    bool operator==(const ZoneSpan&) const = default;
};

/// What the options ask of a year's moments beyond its table. By default nothing.
struct MomentRules {
    YearStart start = YearStart::kRounded;
    HighLatitudeRule highLatitude = HighLatitudeRule::kNone;
    int ishaInterval = 0;                     // minutes after Maghrib; 0 leaves Isha to its angle
    int ishaIntervalRamadan = 0;              // the same in Ramadan; 0 makes no difference
    double maghribAngle = 0.0;                // degrees of depression; 0 leaves it at sunset
    std::array<int, kPrayerCount> offsets{};  // minutes, by prayer
    std::bitset<kYearRows> ramadan;           // the days of Ramadan, by row
    std::vector<ZoneSpan> zone;               // in their order; empty for the record's zone

    bool operator==(const MomentRules&) const = default;
};

}  // namespace horavex
