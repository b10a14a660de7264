#include "engine/moments_around.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/table_row.h"
#include "engine/zone_spans.h"

namespace horavex {

namespace {

void Append(std::vector<DatedMoment>& all, std::size_t row, Date day) {
    const DayMoments moments = MomentsOfRow(row);
    for (std::size_t prayer = 0; prayer < moments.size(); ++prayer) {
        all.push_back(
            {static_cast<Prayer>(prayer), day + moments[prayer].hours / 24.0, moments[prayer]});
    }
}

std::size_t LastRow() {
    return static_cast<std::size_t>(364 + LeapFlag);
}

/// Seconds by which the city's clock has been put forward since a moment, back if negative.
double TurnedSince(const Moment& moment, Date now) {
    const std::vector<ZoneSpan>& zone = RuledYear.rules.moments.zone;
    return zone.empty() ? 0.0 : (SpanOfLocal(zone, now).hours - moment.offset) * 3600.0;
}

}  // namespace

double SecondsSince(const DatedMoment& moment, Date now) {
    return RoundToPlaces((now - moment.at) * kSecondsPerDay - TurnedSince(moment.moment, now), 6);
}

std::vector<DatedMoment> MomentsAround(Date now) {
    std::vector<DatedMoment> all;
    const Date today = std::floor(now);
    if (const auto row = RowOf(today)) {
        Append(all, RowBefore(*row), today - 1.0);
        Append(all, *row, today);
        Append(all, std::min(*row + 1, LastRow()), today + 1.0);
    }
    return all;
}

}  // namespace horavex
