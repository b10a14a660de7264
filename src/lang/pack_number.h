#pragma once

#include <string>

namespace horavex {

/// What the language of the current pack writes between whole and fraction: a point or a comma.
char PackDecimalMark();

/// The general form of a number with that mark, for windows whose words come from the pack: "1,5".
std::string PackNumber(double value);

/// A whole number from 0 on, in the groups that the language makes: "1,234".
std::string PackWholeNumber(long value);

}  // namespace horavex
