#include "calendar/hijri_calendar.h"

#include <cmath>
#include <cstdint>

namespace horavex {

namespace {

constexpr std::int64_t kDaysPerCycle = 10631;  // 30 years
constexpr std::int64_t kEpoch = -466579;       // 1 Muharram 1, days since 30 December 1899

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0 ? 1 : 0);
}

// Days from the epoch to the first of Muharram of a year.
std::int64_t DaysBeforeYear(std::int64_t year) {
    return (year - 1) * 354 + FloorDivide(3 + 11 * year, 30);
}

// Odd months have 30 days, even ones 29.
int DaysBeforeMonth(int month) {
    return 29 * (month - 1) + month / 2;
}

}  // namespace

bool IsHijriLeapYear(int year) {
    return DaysBeforeYear(year + 1) - DaysBeforeYear(year) == 355;
}

int DaysInHijriMonth(int year, int month) {
    return month % 2 == 1 || (month == 12 && IsHijriLeapYear(year)) ? 30 : 29;
}

HijriDate HijriFromDate(Date date) {
    const std::int64_t days = static_cast<std::int64_t>(std::floor(date)) - kEpoch;
    // The inverse of DaysBeforeYear, as the book has it.
    const std::int64_t year = FloorDivide(30 * days + 10646, kDaysPerCycle);
    const auto dayOfYear = static_cast<int>(days - DaysBeforeYear(year));
    int month = 12;
    while (DaysBeforeMonth(month) > dayOfYear) {
        --month;
    }
    return {static_cast<int>(year), month, dayOfYear - DaysBeforeMonth(month) + 1};
}

Date DateFromHijri(const HijriDate& hijri) {
    return static_cast<double>(kEpoch + DaysBeforeYear(hijri.year) + DaysBeforeMonth(hijri.month) +
                               hijri.day - 1);
}

}  // namespace horavex
