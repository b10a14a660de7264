#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/drawing.h"

namespace horavex {

/// A place on the Earth, degrees, north and east positive.
struct GeoPoint {
    double latitude;
    double longitude;

    bool operator==(const GeoPoint&) const = default;
};

/// The outlines of the lands in "Dat/Land.txt": one polygon a line, "longitude,latitude" with
/// blanks between the corners; lines that begin with "#" are comments. Throws FileFault for a
/// missing file, TypeMismatchFault and BoundsFault for a damaged one.
std::vector<std::vector<GeoPoint>> ReadLands();

/// Points along the shorter great circle between two places, both ends included.
std::vector<GeoPoint> GreatCircle(const GeoPoint& from, const GeoPoint& to);

/// A map of the world, as wide as 360 degrees, in an area of the given size in twips, with the
/// great circle from a place to Mecca. Without its file the lands are left out.
Drawing WorldMap(double width, double height, const GeoPoint& place);

/// The part of such a map around a place, with its mark: 120 degrees wide, and moved inwards where
/// it would reach beyond an edge of the world. The whole world for none.
Drawing PlaceMap(double width, double height, const std::optional<GeoPoint>& place);

}  // namespace horavex
