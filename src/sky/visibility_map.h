#pragma once

#include <vector>

#include "sky/crescent.h"
#include "sky/tabulated_almanac.h"

namespace horavex {

/// A point's evening with the letters of its classes, which count where it is judged.
struct MapCell {
    EveningKind kind = EveningKind::kNoSunset;
    char yallop = 0;
    char odeh = 0;

    char LetterOf(Criterion criterion) const {
        return criterion == Criterion::kYallop ? yallop : odeh;
    }
};

inline constexpr double kMapLatitude = 65.0;  // degrees: the map's edges, north and south

/// Where in the world the crescent of an evening can be seen. The evening of each point is that of
/// the sunset which follows the noon of its mean sun on one date, from 180 degrees west to 180
/// degrees east: the line of the date lies where the map ends. It is worked out row by row, so that
/// a window can live on meanwhile.
class VisibilityMap {
public:
    /// day: the midnight that begins the date. step: degrees from cell to cell, of which both the
    /// map's height and its width have a whole number. The almanac has to live as long.
    VisibilityMap(const Almanac& almanac, Date day, Date newMoon, double step = 1.0);

    int Rows() const { return rows_; }        // from the north
    int Columns() const { return columns_; }  // from 180 degrees west
    double Step() const { return step_; }
    Date Day() const { return day_; }
    Date NewMoon() const { return newMoon_; }

    /// Works out the next row, if one is left.
    void ComputeRow();
    bool IsComplete() const { return ComputedRows() == rows_; }
    int ComputedRows() const { return static_cast<int>(cells_.size()) / columns_; }

    /// The cell of a row that is worked out, and the one that holds a place or is the nearest to
    /// it.
    const MapCell& At(int row, int column) const;
    const MapCell& AtPlace(double latitude, double longitude) const;

private:
    MapCell CellOf(double latitude, double longitude) const;

    TabulatedAlmanac almanac_;
    Date day_, newMoon_;
    double step_;
    int rows_, columns_;
    std::vector<MapCell> cells_;
};

}  // namespace horavex
