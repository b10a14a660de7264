#include "engine/moments.h"

namespace horavex {

DayMoments MomentsOfRow(std::size_t row) {
    const PrayerRow hours = TimesOfRow(row);
    DayMoments moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        moments[prayer].hours = hours[prayer];
    }
    return moments;
}

}  // namespace horavex
