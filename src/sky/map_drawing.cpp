#include "sky/map_drawing.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "forms/inks.h"
#include "geo/world_map.h"

namespace horavex {

namespace {

constexpr double kPixel = 15.0;  // twips
constexpr double kMargin = 4.0 * kPixel;
constexpr double kLine = 18.0 * kPixel;  // from one line of text to the next
constexpr double kMapTop = 2.0 * kLine + kMargin;
constexpr double kDegree = kMapWidth / 360.0;
constexpr double kMapBottom = kMapTop + 2.0 * kMapLatitude * kDegree;
constexpr double kLegendTop = kMapBottom + 2.0 * kMargin;
constexpr int kLegendColumns = 3;
constexpr double kGrid = 30.0;  // degrees

Colour ColourOf(Criterion criterion, char letter) {
    return criterion == Criterion::kYallop ? ink::kYallop[letter - 'A'] : ink::kOdeh[letter - 'A'];
}

Colour ColourOf(Criterion criterion, const MapCell& cell) {
    switch (cell.kind) {
        case EveningKind::kJudged:
            return ColourOf(criterion, cell.LetterOf(criterion));
        case EveningKind::kBeforeNewMoon:
            return ink::kBeforeNewMoon;
        case EveningKind::kMoonSetsFirst:
            return ink::kMoonSetsFirst;
        case EveningKind::kNoSunset:
            break;
    }
    return ink::kUnjudged;
}

Point At(double latitude, double longitude) {
    return {(longitude + 180.0) * kDegree, kMapTop + (kMapLatitude - latitude) * kDegree};
}

PolygonStep Box(const Point& corner, const Point& opposite, Colour colour) {
    return {{corner, {opposite.x, corner.y}, opposite, {corner.x, opposite.y}}, colour, {colour}};
}

class Painter {
public:
    Painter(const VisibilityMap& map, Criterion criterion, const MapText& text)
        : map_(map), criterion_(criterion), text_(text) {
        steps.emplace_back(Box({0.0, 0.0}, {kMapWidth, kMapHeight}, kWhite));
        steps.emplace_back(Box({0.0, kMapTop}, {kMapWidth, kMapBottom}, ink::kUnjudged));
    }

    void AddCells() {
        for (int row = 0; row < map_.ComputedRows(); ++row) {
            int begin = 0;
            for (int column = 1; column <= map_.Columns(); ++column) {
                if (column == map_.Columns() || !(At(row, column) == At(row, begin))) {
                    AddRun(row, begin, column);
                    begin = column;
                }
            }
        }
    }

    void AddGrid() {
        for (double longitude = kGrid - 180.0; longitude < 180.0; longitude += kGrid) {
            AddLine({kMapLatitude, longitude}, {-kMapLatitude, longitude}, ink::kDegrees);
        }
        for (double latitude = -2.0 * kGrid; latitude < kMapLatitude; latitude += kGrid) {
            AddLine({latitude, -180.0}, {latitude, 180.0}, ink::kDegrees);
        }
    }

    /// Its outline, as far as it lies on the map.
    void AddLand(const std::vector<GeoPoint>& corners) {
        GeoPoint before = corners.back();
        for (const GeoPoint& corner : corners) {
            const auto [low, high] = std::minmax(before.latitude, corner.latitude);
            if (low < kMapLatitude && high > -kMapLatitude) {
                AddLine(OnMap(before), OnMap(corner), ink::kOutline);
            }
            before = corner;
        }
    }

    void AddTexts() {
        AddText({kMargin, 0.0}, text_.title);
        AddText({kMargin, kLine}, text_.newMoon);
    }

    void AddLegend() {
        const ClassWords& words = text_.classes;
        for (char letter = 'A'; letter <= LastLetter(criterion_); ++letter) {
            AddKey(ColourOf(criterion_, letter),
                   std::string(1, letter) + "  " + words.Of(criterion_, letter));
        }
        AddKey(ink::kMoonSetsFirst, words.moonSetsFirst);
        AddKey(ink::kBeforeNewMoon, words.beforeNewMoon);
    }

    void AddMark(const Observer& place) {
        if (std::abs(place.latitude) < kMapLatitude) {
            steps.emplace_back(FilledCircleStep{
                horavex::At(place.latitude, place.longitude), 4.0 * kPixel, ink::kMark, {kWhite}});
        }
    }

    Drawing steps;

private:
    Colour At(int row, int column) const { return ColourOf(criterion_, map_.At(row, column)); }

    void AddRun(int row, int begin, int end) {
        const double north = kMapLatitude - row * map_.Step();
        steps.emplace_back(Box(horavex::At(north, begin * map_.Step() - 180.0),
                               horavex::At(north - map_.Step(), end * map_.Step() - 180.0),
                               At(row, begin)));
    }

    static GeoPoint OnMap(const GeoPoint& point) {
        return {std::clamp(point.latitude, -kMapLatitude, kMapLatitude), point.longitude};
    }

    void AddLine(const GeoPoint& from, const GeoPoint& to, Colour colour) {
        steps.emplace_back(LineStep{horavex::At(from.latitude, from.longitude),
                                    horavex::At(to.latitude, to.longitude),
                                    {colour}});
    }

    /// A square of its colour and what it means, in columns from above.
    void AddKey(Colour colour, const std::string& meaning) {
        const int rows = (LastLetter(criterion_) - 'A' + 2 + kLegendColumns) / kLegendColumns;
        const double left = kMargin + keys_ / rows * kMapWidth / kLegendColumns;
        const double top = kLegendTop + keys_ % rows * kLine;
        steps.emplace_back(PolygonStep{{{Across(left), top},
                                        {Across(left + kLine), top},
                                        {Across(left + kLine), top + kLine - kMargin},
                                        {Across(left), top + kLine - kMargin}},
                                       colour});
        AddText({left + kLine + kMargin, top}, meaning);
        ++keys_;
    }

    /// at: as if the words began at the left edge.
    void AddText(const Point& at, const std::string& text) {
        const Anchor anchor = text_.rightToLeft ? Anchor::kRight : Anchor::kLeft;
        steps.emplace_back(TextStep{{Across(at.x), at.y}, text, kBlack, anchor});
    }

    double Across(double x) const { return text_.rightToLeft ? kMapWidth - x : x; }

    const VisibilityMap& map_;
    Criterion criterion_;
    const MapText& text_;
    int keys_ = 0;
};

}  // namespace

Drawing MapDrawing(const VisibilityMap& map, Criterion criterion, const Observer& place,
                   const MapText& text) {
    Painter painter(map, criterion, text);
    painter.AddCells();
    painter.AddGrid();
    RunStep([&painter] {
        for (const auto& land : ReadLands()) {
            painter.AddLand(land);
        }
    });
    painter.AddMark(place);
    painter.AddTexts();
    painter.AddLegend();
    return std::move(painter.steps);
}

}  // namespace horavex
