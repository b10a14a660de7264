#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/drawing.h"
#include "terminal/screen/cells.h"

namespace horavex {

/// A drawing as small squares, two of them in each place of the screen, one above the other; texts
/// of the drawing as characters over them.
class Raster {
public:
    /// rows, columns: of the screen.
    Raster(int rows, int columns);

    /// Draws steps that fill an inside of the given size in twips.
    void Draw(const Drawing& drawing, double width, double height);

    /// The same, of whatever size, in the whole of the raster.
    void DrawWhole(const Drawing& drawing);

    /// Squares that nothing was drawn on leave the ground. inOneColour: how light a place is stands
    /// for its colour.
    void Put(Cells& cells, CellPlace to, bool inOneColour) const;

private:
    struct Text {
        int row;
        int column;
        std::string words;
    };

    class Painter;

    void PutTexts(Cells& cells, CellPlace to) const;
    void Dot(int x, int y, const Colour& colour);
    void Line(Point from, Point to, const Colour& colour);
    void Disc(Point centre, double radiusAcross, double radiusDown, const Colour& colour);
    void Polygon(const std::vector<Point>& corners, const Colour& colour);

    int rows_;
    int columns_;
    std::vector<std::optional<Colour>> dots_;  // columns_ × 2 rows_
    std::vector<Text> texts_;
};

}  // namespace horavex
