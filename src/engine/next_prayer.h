#pragma once

#include <cstdint>
#include <string>

#include "base/date.h"
#include "engine/year_table.h"

namespace horavex {

/// The index of the first of today's prayers that lies ahead of the clock by more than 0 whole
/// seconds, Shurooq left out since nobody waits for it; 6 when none is left today.
std::int16_t FindNextPrayer(const PrayerRow& today, Date now);

struct NextPrayerDescription {
    std::int16_t prayer;    // 0, 2 to 5; 0 also when today's prayers are over
    Date time;              // fraction of a day
    std::string sentence;   // its name and its time, in the current language
    double secondsFromNow;  // before today's Fajr this reaches to tomorrow's
};

/// Puts a found prayer (0 to 6) into words. row: today's row of the table. After the day's last
/// prayer the next one is tomorrow's Fajr; on row 365 the same row serves.
NextPrayerDescription DescribeNextPrayer(std::int16_t found, std::size_t row, Date now);

/// Hours, minutes and seconds without leading zeros, whole days dropped: "5:0:12".
std::string RemainingText(double seconds);

}  // namespace horavex
