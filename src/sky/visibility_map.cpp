#include "sky/visibility_map.h"

#include <algorithm>
#include <cmath>

#include "sky/rise_set.h"

namespace horavex {

namespace {

constexpr double kWest = -180.0;
constexpr double kTurn = 360.0;
constexpr double kNoon = 0.5;

// From the noon of the easternmost point to the last moonset of the evening in the west.
constexpr double kSpan = 4.0;

/// Noon of the mean sun, by the clock of Greenwich.
Date NoonAt(Date day, double longitude) {
    return day + kNoon - longitude / kTurn;
}

MapCell Judged(const CrescentEvening& evening) {
    return {EveningKind::kJudged, evening.yallop.letter, evening.odeh.letter};
}

}  // namespace

VisibilityMap::VisibilityMap(const Almanac& almanac, Date day, Date newMoon, double step)
    : almanac_(almanac, day, day + kSpan),
      day_(day),
      newMoon_(newMoon),
      step_(step),
      rows_(static_cast<int>(std::lround(2.0 * kMapLatitude / step))),
      columns_(static_cast<int>(std::lround(kTurn / step))) {}

void VisibilityMap::ComputeRow() {
    const double latitude = kMapLatitude - (ComputedRows() + 0.5) * step_;
    for (int column = 0; column < columns_ && latitude > -kMapLatitude; ++column) {
        cells_.push_back(CellOf(latitude, kWest + (column + 0.5) * step_));
    }
}

const MapCell& VisibilityMap::At(int row, int column) const {
    return cells_.at(static_cast<std::size_t>(row * columns_ + column));
}

const MapCell& VisibilityMap::AtPlace(double latitude, double longitude) const {
    const int row = static_cast<int>((kMapLatitude - latitude) / step_);
    const int column = static_cast<int>((longitude - kWest) / step_);
    return At(std::clamp(row, 0, rows_ - 1), std::clamp(column, 0, columns_ - 1));
}

MapCell VisibilityMap::CellOf(double latitude, double longitude) const {
    const Observer here{latitude, longitude};
    const Date noon = NoonAt(day_, longitude);
    const auto sunset = FirstSunset(almanac_, here, {noon, noon + 1.0});
    if (!sunset) {
        return {EveningKind::kNoSunset};
    }
    const EveningKind kind = KindOf(*sunset, IsMoonUp(almanac_, here, *sunset), newMoon_);
    return kind == EveningKind::kJudged ? Judged(CrescentAt(almanac_, here, *sunset, newMoon_))
                                        : MapCell{kind};
}

}  // namespace horavex
