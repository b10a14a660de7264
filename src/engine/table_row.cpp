#include "engine/table_row.h"

#include <algorithm>

#include "engine/current_year.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"

namespace horavex {

std::optional<std::size_t> RowOf(Date day) {
    if (CivilFromDate(day).year != CurrentYear) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(day - DateSerial(CurrentYear, 1, 1));
}

std::size_t RowAfter(std::size_t row) {
    const bool isBare = RuledYear.rules.moments == MomentRules{};
    const std::size_t last = isBare || LeapFlag == 1 ? kYearRows - 1 : kYearRows - 2;
    return std::min(row + 1, last);
}

std::size_t RowBefore(std::size_t row) {
    return row > 0 ? row - 1 : row;
}

}  // namespace horavex
