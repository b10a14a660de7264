#include "platform/fixed_formats.h"

#include <cmath>

#include "base/rounding.h"

namespace horavex {

namespace {

constexpr const char* kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
constexpr const char* kMonths[] = {"January",   "February", "March",    "April",
                                   "May",       "June",     "July",     "August",
                                   "September", "October",  "November", "December"};

// Of 0 to 99.
char TensOf(int number) {
    return static_cast<char>('0' + number / 10);
}
char UnitsOf(int number) {
    return static_cast<char>('0' + number % 10);
}

std::string TwoDigits(int number) {
    return {TensOf(number), UnitsOf(number)};
}

// 0 and 12 o'clock are 12.
int HourOfDial(int hour) {
    return hour % 12 == 0 ? 12 : hour % 12;
}

const char* HalfOfDay(int hour) {
    return hour < 12 ? " AM" : " PM";
}

// The day that holds the moment once it is rounded to a whole second.
Date DayOf(Date moment) {
    return std::floor(RoundHalfEven(moment * kSecondsPerDay) / kSecondsPerDay);
}

}  // namespace

std::string FixedFormats::MediumTime(Date time) const {
    // In one piece: a year's export asks for two thousand.
    const ClockTime t = ClockTimeOf(time);
    const int hour = HourOfDial(t.hour);
    return {TensOf(hour), UnitsOf(hour),           ':', TensOf(t.minute), UnitsOf(t.minute),
            ' ',          t.hour < 12 ? 'A' : 'P', 'M'};
}

std::string FixedFormats::LongTime(Date time) const {
    const ClockTime t = ClockTimeOf(time);
    return std::to_string(HourOfDial(t.hour)) + ":" + TwoDigits(t.minute) + ":" +
           TwoDigits(t.second) + HalfOfDay(t.hour);
}

std::string FixedFormats::LongDate(Date date) const {
    const CivilDate d = CivilFromDate(DayOf(date));
    return WeekdayName(date) + ", " + kMonths[d.month - 1] + " " + std::to_string(d.day) + ", " +
           std::to_string(d.year);
}

std::string FixedFormats::ShortDate(Date date) const {
    const CivilDate d = CivilFromDate(DayOf(date));
    return std::to_string(d.month) + "/" + std::to_string(d.day) + "/" + std::to_string(d.year);
}

std::string FixedFormats::MonthAndYear(Date date) const {
    const CivilDate d = CivilFromDate(DayOf(date));
    return std::string(kMonths[d.month - 1]) + " " + std::to_string(d.year);
}

std::string FixedFormats::WeekdayName(Date date) const {
    return kWeekdays[Weekday(DayOf(date))];
}

}  // namespace horavex
