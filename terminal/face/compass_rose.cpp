#include "terminal/face/compass_rose.h"

#include <cmath>
#include <numbers>

namespace horavex {

namespace {

constexpr double kRadiusDown = 4.0;
constexpr double kRadiusAcross = 9.0;  // a place of the screen is about twice as high as wide
constexpr int kMiddleRow = kRoseRows / 2;
constexpr int kMiddleColumn = kRoseColumns / 2;

/// A place so far from the middle, 1 being on the dial.
CellPlace PlaceAt(CellPlace corner, double degrees, double far) {
    const double angle = degrees * std::numbers::pi / 180.0;
    return {corner.row + kMiddleRow -
                static_cast<int>(std::lround(far * kRadiusDown * std::cos(angle))),
            corner.column + kMiddleColumn +
                static_cast<int>(std::lround(far * kRadiusAcross * std::sin(angle)))};
}

/// An arrow for the eighth of the circle that a direction lies in.
const char* ArrowFor(double degrees) {
    constexpr const char* kArrows[] = {"↑", "↗", "→", "↘", "↓", "↙", "←", "↖"};
    const int eighth = static_cast<int>(std::lround(degrees / 45.0));
    return kArrows[static_cast<std::size_t>(((eighth % 8) + 8) % 8)];
}

}  // namespace

void PutCompassRose(Cells& cells, CellPlace at, double degrees) {
    constexpr double kStepOfDial = 15.0;
    for (double mark = 0.0; mark < 360.0; mark += kStepOfDial) {
        const CellPlace place = PlaceAt(at, mark, 1.0);
        cells.Put(place.row, place.column, "·", Tone::kFaint);
    }
    for (const double mark : {90.0, 180.0, 270.0}) {
        const CellPlace place = PlaceAt(at, mark, 1.0);
        cells.Put(place.row, place.column, "+", Tone::kFaint);
    }
    const CellPlace north = PlaceAt(at, 0.0, 1.0);
    cells.Put(north.row, north.column, "N", Tone::kStrong);
    constexpr double kStepOfNeedle = 0.05;
    for (double far = 0.0; far < 0.85; far += kStepOfNeedle) {
        const CellPlace place = PlaceAt(at, degrees, far);
        cells.Put(place.row, place.column, "•", Tone::kAccent);
    }
    const CellPlace tip = PlaceAt(at, degrees, 0.85);
    cells.Put(tip.row, tip.column, ArrowFor(degrees), Tone::kAccent);
    cells.Put(at.row + kMiddleRow, at.column + kMiddleColumn, "o", Tone::kStrong);
}

}  // namespace horavex
