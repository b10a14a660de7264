#pragma once

#include <string>

#include "base/date.h"
#include "calendar/hijri_today.h"
#include "engine/next_prayer.h"

namespace horavex {

/// Everything that the day's view tells, taken at one moment from the calculated year.
struct DayView {
    Date now;
    PrayerRow hours;
    HijriTexts hijri;
    NextPrayerDescription next;
};

DayView TakeDayView();

/// The seconds until the next prayer: the time of day of the told span, since before today's
/// Fajr that span reaches to tomorrow's.
int SecondsLeft(const DayView& view);

/// The view as lines for people, the next prayer set off. highlight: with the terminal's marks.
std::string DayText(const DayView& view, bool highlight);

}  // namespace horavex
