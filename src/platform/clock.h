#pragma once

#include <cmath>

#include "base/date.h"

namespace horavex {

/// How far the local clock is ahead of Greenwich, daylight saving included.
struct ClockOffset {
    double hours = 0.0;     // east positive
    bool daylight = false;  // the data of the zone call it daylight saving

    bool operator==(const ClockOffset&) const = default;
};

/// The system's clocks. Never fails.
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time of this moment, to the second or finer.
    virtual Date Now() const = 0;

    /// Date and time of this moment in Greenwich (UTC).
    virtual Date UniversalNow() const = 0;

    /// Seconds of a clock that only goes forward, for spans. The zero is arbitrary.
    virtual double SteadySeconds() const = 0;

    /// The offset at noon of a local day, past or to come, from the system's time-zone data.
    virtual ClockOffset OffsetOn(Date day) const = 0;

    /// The offset while the local clock shows a date and time, to the second: the earlier one of a
    /// time that comes twice; a time that is left out counts on the clock before the change.
    virtual ClockOffset OffsetAt(Date local) const = 0;

    /// Midnight that began the present local day.
    Date Today() const { return std::floor(Now()); }
};

}  // namespace horavex
