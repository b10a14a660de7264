#include "ctl/moment_text.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "engine/solar_event.h"
#include "platform/platform.h"

namespace horavex {

namespace {

bool HasStar(const Moment& moment) {
    return moment.by == MomentBy::kRule;
}

/// Days from that of the moment to that of its clock.
int DayShift(const Moment& moment) {
    return NearestInt(std::floor(RoundHalfEven(moment.hours * 3600.0) / kSecondsPerDay));
}

std::string ClockText(const Moment& moment) {
    return Ports().formats.MediumTime(moment.hours / 24.0);
}

}  // namespace

std::string MomentText(const Moment& moment) {
    const int shift = DayShift(moment);
    const char* day = shift == 1 ? ", next day" : shift == -1 ? ", day before" : "";
    return ClockText(moment) + day + (HasStar(moment) ? " *" : "");
}

std::string MomentColumn(const Moment& moment) {
    if (moment.hours == NoEvent) {
        return "   --     ";
    }
    const int shift = DayShift(moment);
    const char* day = shift == 1 ? "+" : shift == -1 ? "-" : " ";
    return ClockText(moment) + (HasStar(moment) ? "*" : " ") + day;
}

std::string StarNote(std::span<const Moment> moments) {
    return std::ranges::any_of(moments, HasStar)
               ? "* by a rule, for the sun does not sink to the angle in time\n"
               : "";
}

std::string NextDayNote(std::span<const Moment> moments) {
    return std::ranges::any_of(moments, [](const Moment& m) { return DayShift(m) == 1; })
               ? "+ on the next day\n"
               : "";
}

}  // namespace horavex
