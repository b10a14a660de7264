#include "calendar/month_name.h"

namespace horavex {

std::string MonthName(int monthNumber) {
    constexpr const char* kNames[] = {"January", "January",   "February", "March",
                                      "April",   "May",       "June",     "July",
                                      "August",  "September", "October",  "November"};
    return monthNumber >= 0 && monthNumber <= 11 ? kNames[monthNumber] : "December";
}

}  // namespace horavex
