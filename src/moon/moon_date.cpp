#include "moon/moon_date.h"

#include <cmath>

#include "base/date.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/program_state.h"
#include "base/rounding.h"
#include "calendar/month_name.h"
#include "platform/platform.h"
#include "windows/horavex_main_form.h"

namespace horavex {

std::int16_t MoonMonth = 0;
std::int16_t MoonYear = 0;
double MoonDay = 0.0;

namespace {

const ProgramStateReset reset(ClearMoonDate);

constexpr double kFirstGregorianDay = 2299161.0;  // 15 October 1582

double WholeZone() {
    return std::floor(TextToNumber(HoravexMainForm->txtTimeZone.Text()));
}

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

void MoonDateFromDay(double& julianDay) {
    julianDay += std::fabs(WholeZone()) / 24.0;
    julianDay = std::fabs(julianDay) + 0.5;
    const double whole = std::floor(julianDay);
    const double F = julianDay - whole;
    const double B = WithReformUndone(whole) + 1524.0;
    const double C = std::floor((B - 122.1) / 365.25);
    const double D = std::floor(365.25 * C);
    const double E = std::floor((B - D) / 30.6001);
    MoonDay = B - D - std::floor(30.6001 * E) + F;
    MoonMonth = RoundToInt16(E < 14.0 ? E - 1.0 : E - 13.0);
    MoonYear = RoundToInt16(MoonMonth > 2 ? C - 4716.0 : C - 4715.0);
}

std::string MoonClockText(int leadingBlanks) {
    double h = (MoonDay - std::floor(MoonDay)) * 24.0;
    h = std::fabs(WholeZone() + h);
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

std::string MoonDateText() {
    return WholeText(MoonDay) + " " + MonthName(MoonMonth) + " " + std::to_string(MoonYear);
}

void ClearMoonDate() {
    MoonMonth = MoonYear = 0;
    MoonDay = 0.0;
}

std::int16_t PresentYear() {
    return ToInt16(CivilFromDate(Ports().clock.Today()).year);
}

}  // namespace horavex
