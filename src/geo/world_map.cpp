#include "geo/world_map.h"

#include <algorithm>
#include <cmath>

#include "base/bytes.h"
#include "base/fault.h"
#include "base/number_text.h"
#include "base/text.h"
#include "engine/angle.h"
#include "forms/inks.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kFile = "Dat\\Land.txt";
constexpr GeoPoint kMecca{21.42333, 39.82333};
constexpr int kCircleSteps = 72;

GeoPoint ReadCorner(const std::string& text) {
    const auto numbers = Split(text, ',');
    if (numbers.size() != 2) {
        throw BoundsFault(std::string(kFile) + ": \"" + text + "\" is no corner");
    }
    return {TextToNumber(numbers[1]), TextToNumber(numbers[0])};
}

std::vector<GeoPoint> ReadLand(const std::string& line) {
    std::vector<GeoPoint> corners;
    for (const std::string& corner : Split(line, ' ')) {
        corners.push_back(ReadCorner(corner));
    }
    return corners;
}

/// A direction from the middle of the Earth.
struct Vector {
    double x;
    double y;
    double z;
};

Vector VectorOf(const GeoPoint& point) {
    const double latitude = DegToRad(point.latitude);
    const double longitude = DegToRad(point.longitude);
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

GeoPoint PointOf(const Vector& v) {
    return {RadToDeg(std::atan2(v.z, std::hypot(v.x, v.y))), RadToDeg(std::atan2(v.y, v.x))};
}

/// What a map shows: its upper left corner, and its width. It is half as high as wide, in degrees.
struct MapArea {
    GeoPoint corner;
    double width;
};

constexpr MapArea kWorld{{90.0, -180.0}, 360.0};
constexpr double kWidthAround = 120.0;

MapArea AreaAround(const GeoPoint& place) {
    constexpr double kHalf = kWidthAround / 2.0;
    return {{std::clamp(place.latitude + kHalf / 2.0, -90.0 + kHalf, 90.0),
             std::clamp(place.longitude - kHalf, -180.0, 180.0 - kWidthAround)},
            kWidthAround};
}

class MapPainter {
public:
    MapPainter(double width, double height, const MapArea& area)
        : width_(width), height_(height), area_(area) {
        steps.emplace_back(PolygonStep{
            {{0.0, 0.0}, {width, 0.0}, {width, height}, {0.0, height}}, ink::kSea, {ink::kSea}});
    }

    void AddLands() {
        for (const auto& land : ReadLands()) {
            AddLand(land);
        }
    }

    void AddLand(const std::vector<GeoPoint>& corners) {
        PolygonStep land{{}, ink::kLand, {ink::kCoast}};
        for (const GeoPoint& corner : corners) {
            land.corners.push_back(At(corner));
        }
        steps.emplace_back(std::move(land));
    }

    // A step that leaves the map at one side is not drawn across it.
    void AddWay(const std::vector<GeoPoint>& way) {
        for (std::size_t i = 1; i < way.size(); ++i) {
            if (std::fabs(way[i].longitude - way[i - 1].longitude) < 180.0) {
                steps.emplace_back(LineStep{At(way[i - 1]), At(way[i]), {ink::kMark, 2}});
            }
        }
    }

    void AddMark(const GeoPoint& point, Colour colour) {
        steps.emplace_back(FilledCircleStep{At(point), 50.0, colour, {colour}});
    }

    Drawing steps;

private:
    Point At(const GeoPoint& point) const {
        return {(point.longitude - area_.corner.longitude) / area_.width * width_,
                (area_.corner.latitude - point.latitude) / (area_.width / 2.0) * height_};
    }

    double width_;
    double height_;
    MapArea area_;
};

}  // namespace

std::vector<std::vector<GeoPoint>> ReadLands() {
    std::vector<std::vector<GeoPoint>> lands;
    for (const std::string& line : Split(StringOf(Ports().programFolder.ReadWhole(kFile)), '\n')) {
        if (!line.empty() && !line.starts_with('#')) {
            lands.push_back(ReadLand(line));
        }
    }
    return lands;
}

std::vector<GeoPoint> GreatCircle(const GeoPoint& from, const GeoPoint& to) {
    const Vector a = VectorOf(from);
    const Vector b = VectorOf(to);
    const double angle = std::acos(std::clamp(a.x * b.x + a.y * b.y + a.z * b.z, -1.0, 1.0));
    std::vector<GeoPoint> points;
    for (int step = 0; step <= kCircleSteps; ++step) {
        const double share = static_cast<double>(step) / kCircleSteps;
        const double p = angle == 0.0 ? 1.0 - share : std::sin((1.0 - share) * angle);
        const double q = angle == 0.0 ? share : std::sin(share * angle);
        points.push_back(PointOf({p * a.x + q * b.x, p * a.y + q * b.y, p * a.z + q * b.z}));
    }
    return points;
}

Drawing WorldMap(double width, double height, const GeoPoint& place) {
    MapPainter map(width, height, kWorld);
    RunStep([&map] { map.AddLands(); });
    map.AddWay(GreatCircle(place, kMecca));
    map.AddMark(place, ink::kAccent);
    map.AddMark(kMecca, ink::kMark);
    return map.steps;
}

Drawing PlaceMap(double width, double height, const std::optional<GeoPoint>& place) {
    MapPainter map(width, height, place ? AreaAround(*place) : kWorld);
    RunStep([&map] { map.AddLands(); });
    if (place) {
        map.AddMark(*place, ink::kMark);
    }
    return map.steps;
}

}  // namespace horavex
