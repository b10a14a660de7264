#pragma once

#include <string>

namespace horavex {

/// Refuses the usage where the almanac does not have the year of an option.
void RequireAlmanacYear(const std::string& option, int year);

}  // namespace horavex
