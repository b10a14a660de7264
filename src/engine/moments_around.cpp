#include "engine/moments_around.h"

#include <cmath>

#include "engine/moments.h"
#include "engine/table_row.h"

namespace horavex {

namespace {

void Append(std::vector<DatedMoment>& all, std::size_t row, Date day) {
    const DayMoments moments = MomentsOfRow(row);
    for (std::size_t prayer = 0; prayer < moments.size(); ++prayer) {
        all.push_back(
            {static_cast<Prayer>(prayer), day + moments[prayer].hours / 24.0, moments[prayer]});
    }
}

}  // namespace

std::vector<DatedMoment> MomentsAround(Date now) {
    std::vector<DatedMoment> all;
    const Date today = std::floor(now);
    if (const auto row = RowOf(today)) {
        Append(all, RowBefore(*row), today - 1.0);
        Append(all, *row, today);
        Append(all, RowAfter(*row), today + 1.0);
    }
    return all;
}

}  // namespace horavex
