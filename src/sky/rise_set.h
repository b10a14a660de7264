#pragma once

#include <optional>
#include <vector>

#include "sky/crossing.h"
#include "sky/horizon.h"

namespace horavex {

/// What a body does in a span, a day where somebody lives for one; nothing where it does not. Its
/// upper limb rises and sets on the level horizon with 34 minutes of arc of refraction.
struct DayArc {
    std::optional<Date> rise;
    std::optional<Date> transit;  // the upper one
    std::optional<Date> set;
    bool upAtBegin = false;  // and for the whole span where it neither rises nor sets
};

/// Instants at which the centre of the sun, without refraction, passes a depth below the horizon.
struct Twilight {
    std::optional<Date> dawn;
    std::optional<Date> dusk;
};

inline constexpr double kCivilTwilight = 6.0;  // degrees below the horizon
inline constexpr double kNauticalTwilight = 12.0;
inline constexpr double kAstronomicalTwilight = 18.0;

// The arcs are searched in steps of ten minutes: in the far north and south a body that shows for
// less is passed over. The first of each kind counts.

/// The first set or rise of the sun or moon in a span; nothing where it has none.
std::optional<Date> FirstSunset(const Almanac& almanac, const Observer& observer,
                                const SkySpan& span);
std::optional<Date> FirstSunrise(const Almanac& almanac, const Observer& observer,
                                 const SkySpan& span);
std::optional<Date> FirstMoonset(const Almanac& almanac, const Observer& observer,
                                 const SkySpan& span);

/// In the far north and south the moon may set twice within a day.
std::optional<Date> LastMoonset(const Almanac& almanac, const Observer& observer,
                                const SkySpan& span);

/// Whether any of the moon is over the horizon.
bool IsMoonUp(const Almanac& almanac, const Observer& observer, Date universal);

DayArc SunArc(const Almanac& almanac, const Observer& observer, const SkySpan& span);
DayArc MoonArc(const Almanac& almanac, const Observer& observer, const SkySpan& span);

/// When any of the body is over the horizon, in a span.
std::vector<SkySpan> SunUp(const Almanac& almanac, const Observer& observer, const SkySpan& span);
std::vector<SkySpan> MoonUp(const Almanac& almanac, const Observer& observer, const SkySpan& span);

Twilight TwilightOf(const Almanac& almanac, const Observer& observer, const SkySpan& span,
                    double depth);

}  // namespace horavex
