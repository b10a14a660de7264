#pragma once

#include <optional>
#include <string>

#include "base/date.h"

namespace horavex {

/// A local date and time for files, to the nearest second: "2026-11-22 15:12:30". Years 1 to 9999.
std::string StampOf(Date date);

/// The moment of such a text; none for any other text and for a date or time that there is not.
std::optional<Date> DateOfStamp(const std::string& text);

}  // namespace horavex
