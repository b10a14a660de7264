#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "engine/moment.h"

namespace horavex {

struct DaySky;

/// In place of a prayer's index: none is left today.
inline constexpr std::int16_t kNoPrayerLeft = 6;

/// The prayer that comes next.
struct NextMoment {
    std::int16_t prayer = 0;        // kFajr or kZuhr to kIsha
    bool isTomorrows = false;       // today's prayers are over
    Moment moment;                  // in the hours of its own day, but for yesterday's
    double remainingSeconds = 0.0;  // whole seconds until then, [0, 86400)
    bool isYesterdays = false;      // past midnight, and in the hours of today
};

/// A moment and whose it is.
struct PrayerMoment {
    Prayer prayer = kFajr;
    Moment moment;
};

/// A day as it stands at one moment. Captions, the face's variables, the icon's tip, the command
/// line and the documents are words for it; none of them reads another's words.
struct DayView {
    Date now = 0.0;             // of the local clock
    Date date = 0.0;            // midnight that begins the day
    HijriDate hijri{};          // by the calendar that the options ask for
    std::string place;          // display text of the place that the year is for
    DayMoments moments;         // of the day
    NextMoment next;            // from now on
    double qiblaDegrees = 0.0;  // from north, positive to the east

    std::string clocks;  // both offsets in words where this computer's clock is another

    std::string fast;  // what of a fast the countdown goes to, in words; empty outside Ramadan

    std::array<int, kPrayerCount> iqamaMinutes{};  // behind the prayers; 0 where none is told

    std::string iqama;  // the countdown to an iqama that is ahead, in words

    std::shared_ptr<const DaySky> sky;  // over the place; nullptr where nobody asked for it

    // Moments of the days beside it that the clock reaches on this one, in its own hours, in order.
    std::vector<PrayerMoment> late;   // of the day before, past midnight
    std::vector<PrayerMoment> early;  // of the day after, before midnight
};

/// What a day is made of besides the moment.
struct DaySource {
    std::string place;
    DayMoments today;
    DayMoments tomorrow;
    DayMoments yesterday;
    HijriDate hijri{};
    double qiblaDegrees = 0.0;
    double offset = 0.0;  // of the clock now, as that of the moments
};

DayView MakeDayView(const DaySource& source, Date now);

/// A moment as the day tells it whose it is.
struct OwnMoment {
    Date day = 0.0;  // midnight that begins it
    Moment moment;   // in its hours
};

/// The next prayer so.
OwnMoment OwnNext(const DayView& day);

}  // namespace horavex
