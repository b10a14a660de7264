#pragma once

#include <string>

namespace horavex {

/// English name of a Gregorian month, whatever the language: 1 "January" to 11 "November"; 0
/// also gives "January", and any other number "December".
std::string MonthName(int monthNumber);

}  // namespace horavex
