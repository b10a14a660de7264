#pragma once

#include <cmath>
#include <iterator>
#include <map>

#include "platform/clock.h"

namespace horavex {

/// Both clocks, moved by hand.
class ManualClock : public Clock {
public:
    /// Moves the wall clock alone, as a user who sets the time does.
    void Set(Date now) { now_ = now; }

    /// Moves both clocks on, to the millisecond. Whole seconds stay whole however many steps
    /// lead there, so that a midnight is reached and not missed by the last bit.
    void Advance(double seconds) {
        const double milliseconds = std::round(seconds * 1000.0);
        steadyMilliseconds_ += milliseconds;
        const double total = std::round(now_ * kMillisecondsPerDay) + milliseconds;
        const double day = std::floor(total / kMillisecondsPerDay);
        now_ = day + (total - day * kMillisecondsPerDay) / kMillisecondsPerDay;
    }

    /// The zone from a local date and time on: those of earlier ones stay.
    void SetOffset(Date from, ClockOffset offset) { offsets_[from] = offset; }

    Date Now() const override { return now_; }
    ClockOffset OffsetOn(Date day) const override { return OffsetAt(day + 0.5); }
    ClockOffset OffsetAt(Date local) const override {
        const auto next = offsets_.upper_bound(local);
        return next == offsets_.begin() ? ClockOffset{} : std::prev(next)->second;
    }
    /// The local zone is that of Greenwich.
    Date UniversalNow() const override { return now_; }
    double SteadySeconds() const override { return steadyMilliseconds_ / 1000.0; }

private:
    static constexpr double kMillisecondsPerDay = kSecondsPerDay * 1000.0;

    std::map<Date, ClockOffset> offsets_;  // by the first moment of each; Greenwich before
    Date now_ = 0.0;
    double steadyMilliseconds_ = 0.0;
};

}  // namespace horavex
