#include "moon/moon_date.h"

#include <cmath>

#include "base/int16.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "calendar/date_words.h"

namespace horavex {

namespace {

constexpr double kFirstGregorianDay = 2299161.0;  // 15 October 1582

/// The day count with the days that the Gregorian reform left out put in again.
double WithReformUndone(double day) {
    if (day < kFirstGregorianDay) {
        return day;
    }
    const double alpha = std::floor((day - 1867216.25) / 36524.25);
    return day + 1.0 + alpha - std::floor(alpha / 4.0);
}

std::string WholeText(double number) {
    return std::to_string(RoundToInt16(std::floor(number)));
}

}  // namespace

double WholeZone(const std::string& text) {
    return std::floor(TextToNumber(text));
}

MoonDate MoonDateFromDay(double& julianDay, double zone) {
    julianDay += std::fabs(zone) / 24.0;
    julianDay = std::fabs(julianDay) + 0.5;
    const double whole = std::floor(julianDay);
    const double F = julianDay - whole;
    const double B = WithReformUndone(whole) + 1524.0;
    const double C = std::floor((B - 122.1) / 365.25);
    const double D = std::floor(365.25 * C);
    const double E = std::floor((B - D) / 30.6001);
    const std::int16_t month = RoundToInt16(E < 14.0 ? E - 1.0 : E - 13.0);
    const std::int16_t year = RoundToInt16(month > 2 ? C - 4716.0 : C - 4715.0);
    return {month, year, B - D - std::floor(30.6001 * E) + F};
}

std::string MoonClockText(const MoonDate& date, double zone, int leadingBlanks) {
    double h = (date.MoonDay - std::floor(date.MoonDay)) * 24.0;
    h = std::fabs(zone + h);
    const double m = std::floor((h - std::floor(h)) * 60.0);
    if (h > 24.0) {
        h -= 24.0;
    }
    return std::string(static_cast<std::size_t>(leadingBlanks), ' ') + WholeText(h) + "hrs " +
           WholeText(m) + "min";
}

std::string WeekDayText(double& julianDay) {
    constexpr const char* kNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                      "Thursday", "Friday", "Saturday"};
    julianDay += 1.5;
    return kNames[static_cast<std::size_t>(std::fmod(RoundHalfEven(julianDay), 7.0))];
}

std::string MoonDateText(const MoonDate& date) {
    return WholeText(date.MoonDay) + " " + MonthName(date.MoonMonth) + " " +
           std::to_string(date.MoonYear);
}

}  // namespace horavex
