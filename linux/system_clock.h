#pragma once

#include <ctime>

#include "platform/clock.h"

namespace horavex {

/// The local date and time of a moment, seconds since 1970-01-01 UTC, in whole seconds. The zone
/// is looked up anew each time, or once a turn where looks are shared: a zone that changes while
/// the program runs takes effect at once.
Date LocalDate(std::time_t moment);

/// The offset of the local clock at a moment, likewise.
ClockOffset LocalOffset(std::time_t moment);

/// The system's clocks. Now is the whole second that runs, so that it never shows a second, and
/// at midnight a day, that has not come yet.
class SystemClock : public Clock {
public:
    Date Now() const override;
    ClockOffset OffsetOn(Date day) const override;
    ClockOffset OffsetAt(Date local) const override;
    Date UniversalNow() const override;
    double SteadySeconds() const override;
};

}  // namespace horavex
