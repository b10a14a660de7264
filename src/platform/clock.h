#pragma once

#include <cmath>

#include "base/date.h"

namespace horavex {

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

    /// Midnight that began the present local day.
    Date Today() const { return std::floor(Now()); }
};

}  // namespace horavex
