#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "engine/moment.h"
#include "engine/moment_rules.h"
#include "engine/solar_event.h"

namespace horavex {

// Nights of high latitudes. With a rule, Fajr and Isha hold to their angles as long as the sun
// sinks to them and as long as they keep to their portion of the night, counted back from sunrise
// and on from sunset: a half, a seventh, or a sixtieth for each degree of the angle, as tables of
// the larger conventions publish them. By the rule of the nearest day a twilight that does not come
// stands at the clock's hour of the last day that had it; the end of the year stands for that of
// the year before. Days that lack sunrise, Asr or sunset borrow all three from such a day under any
// rule, as far from noon as there. A Maghrib by an angle has the part of Isha's portion that its
// angle is of Isha's.
//
// Hours here are of the record's standard time, without the daylight hour, from the midnight that
// begins the day.

/// What the sun's events of all days of a year take.
struct YearSun {
    explicit YearSun(const YearInputs& inputs)
        : constants(ConstantsOf(inputs)), place(EventPlaceOf(inputs.place)) {}

    YearConstants constants;
    EventPlace place;
};

/// What the days of a year share.
struct SharedByDays {
    explicit SharedByDays(const YearInputs& inputs) : sun(inputs) {}

    YearSun sun;

    /// Those that have Shurooq, Asr and Maghrib, by row, as far as they have been looked for.
    std::array<std::optional<std::optional<PrayerRow>>, kYearRows> wholeDays{};
};

/// What a year's moments are made from.
struct YearSource {
    const YearInputs& inputs;
    const YearTimes& times;  // by the same inputs
    const MomentRules& rules;
    SharedByDays* shared = nullptr;  // keeps it for the next rows; nothing is kept without
};

/// A day by the sun alone.
struct SunDay {
    PrayerRow hours{};      // NoEvent where the sun does not get there
    bool borrowed = false;  // Shurooq, Asr and Maghrib are those of another day
};

SunDay SunOfDay(const YearSource& year, std::size_t row);

Moment FajrOf(const YearSource& year, std::size_t row);

/// The middle of the night behind a day, which no Isha passes; NoEvent in a year without days.
double MiddleOfNight(const YearSource& year, std::size_t row);

/// Isha by its angle, whatever the intervals say.
Moment IshaOf(const YearSource& year, std::size_t row);

/// Maghrib by the angle of the rules; NoEvent where neither sun nor rule gives one.
Moment MaghribByAngle(const YearSource& year, std::size_t row);

}  // namespace horavex
