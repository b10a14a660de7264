#pragma once

#include <cstddef>
#include <optional>

#include "base/date.h"

namespace horavex {

// Rows of the program's year, one a day.

/// That of a day; none where the year has turned since the table was made.
std::optional<std::size_t> RowOf(Date day);

/// The row of the next day. Row 365 has no next one and serves itself. Without rules a common
/// year's last day looks at row 365, which holds what a leap year before has left there.
std::size_t RowAfter(std::size_t row);

/// The first day of the year serves as its own yesterday.
std::size_t RowBefore(std::size_t row);

}  // namespace horavex
