#pragma once

#include <array>

#include "engine/year_calculation.h"

namespace horavex {

/// What a moment was worked out by.
enum class MomentBy {
    kSun,       // the sun stands where the method wants it
    kRule,      // a rule for nights in which it does not get there
    kInterval,  // so long after another moment
};

/// The word of files and of the command line: "sun".
inline const char* WordOf(MomentBy by) {
    constexpr const char* kWords[] = {"sun", "rule", "interval"};
    return kWords[static_cast<std::size_t>(by)];
}

/// A time of prayer of one day.
struct Moment {
    double hours = 0.0;  // of the local clock from the midnight that begins the day; NoEvent
    MomentBy by = MomentBy::kSun;
    int dayShift = 0;  // days from the day that it is told on to that of its clock; 0 without rules
    double offset = 0.0;  // hours that its clock is ahead of Greenwich, where a zone's clock counts

    bool operator==(const Moment&) const = default;
};

/// By prayer.
using DayMoments = std::array<Moment, kPrayerCount>;

}  // namespace horavex
