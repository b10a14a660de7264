#include "base/date.h"

#include <cmath>

#include "base/rounding.h"

namespace horavex {

namespace {

// Days from 0000-03-01 of the proleptic Gregorian calendar to 1899-12-30.
constexpr std::int64_t kEpochFromMarchZero = 693899;
constexpr std::int64_t kDaysPerEra = 146097;  // 400 years

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0 ? 1 : 0);
}

// Days since 0000-03-01; months counted from March put the leap day at the year's end.
std::int64_t DaysFromMarchZero(std::int64_t year, int month, int day) {
    const std::int64_t y = year - (month <= 2 ? 1 : 0);
    const std::int64_t era = FloorDivide(y, 400);
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysPerEra + dayOfEra;
}

bool IsLeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysInMonth(int year, int month) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

}  // namespace

Date DateSerial(int year, int month, int day) {
    const std::int64_t monthIndex = std::int64_t{year} * 12 + month - 1;
    const std::int64_t y = FloorDivide(monthIndex, 12);
    const int m = static_cast<int>(monthIndex - y * 12) + 1;
    return static_cast<double>(DaysFromMarchZero(y, m, 1) + day - 1 - kEpochFromMarchZero);
}

double TimeSerial(int hour, int minute, int second) {
    return (hour * 3600.0 + minute * 60.0 + second) / kSecondsPerDay;
}

CivilDate CivilFromDate(Date date) {
    const std::int64_t days = static_cast<std::int64_t>(std::floor(date)) + kEpochFromMarchZero;
    const std::int64_t era = FloorDivide(days, kDaysPerEra);
    const std::int64_t dayOfEra = days - era * kDaysPerEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int marchMonth = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int day = static_cast<int>(dayOfYear) - (153 * marchMonth + 2) / 5 + 1;
    const int month = marchMonth + (marchMonth < 10 ? 3 : -9);
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<int>(year), month, day};
}

int Weekday(Date date) {
    const double days = std::floor(date) + 6.0;  // 30 December 1899 was a Saturday
    return static_cast<int>(days - std::floor(days / 7.0) * 7.0);
}

bool IsCivilDate(int year, int month, int day) {
    return year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysInMonth(year, month);
}

ClockTime ClockTimeOf(Date date) {
    const int seconds = SecondOfDay(date);
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

int SecondOfDay(Date date) {
    const double seconds = RoundHalfEven((date - std::floor(date)) * kSecondsPerDay);
    // Written so that the time of no date at all is midnight, too.
    return seconds < kSecondsPerDay ? static_cast<int>(seconds) : 0;
}

}  // namespace horavex
