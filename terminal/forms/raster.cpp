#include "terminal/forms/raster.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

/// 0 to 1.
double Lightness(const Colour& colour) {
    return (0.3 * colour.red + 0.59 * colour.green + 0.11 * colour.blue) / 255.0;
}

/// Where the edge between two corners crosses a line of squares.
std::optional<double> Crossing(const Point& from, const Point& to, double y) {
    if ((from.y <= y) == (to.y <= y)) {
        return std::nullopt;
    }
    return from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x);
}

/// How far a text lies left of its place.
int ColumnsBefore(const TextStep& text) {
    switch (text.anchor) {
        case Anchor::kLeft:
            return 0;
        case Anchor::kMiddle:
            return WidthOf(text.text) / 2;
        case Anchor::kRight:
            break;
    }
    return WidthOf(text.text);
}

/// The least frame around steps.
struct Extent {
    Point least{1e9, 1e9};
    Point most{-1e9, -1e9};

    void Take(const Point& at, double radius = 0.0) {
        least = {std::min(least.x, at.x - radius), std::min(least.y, at.y - radius)};
        most = {std::max(most.x, at.x + radius), std::max(most.y, at.y + radius)};
    }

    void operator()(const LineStep& line) {
        Take(line.from);
        Take(line.to);
    }
    void operator()(const FilledCircleStep& circle) { Take(circle.centre, circle.radius); }
    void operator()(const PolygonStep& polygon) {
        for (const Point& corner : polygon.corners) {
            Take(corner);
        }
    }
    void operator()(const TextStep& text) { Take(text.at); }
    void operator()(const TextRowStep& row) {
        for (const TextRowStep::Entry& entry : row.entries) {
            Take(entry.at);
        }
    }
    void operator()(const PictureStep& picture) {
        Take(picture.at);
        Take({picture.at.x + picture.width, picture.at.y + picture.height});
    }
};

}  // namespace

Raster::Raster(int rows, int columns)
    : rows_(std::max(rows, 1)),
      columns_(std::max(columns, 1)),
      dots_(static_cast<std::size_t>(2 * rows_) * static_cast<std::size_t>(columns_)) {}

/// Puts steps into squares.
class Raster::Painter {
public:
    Painter(Raster& raster, Point origin, double across, double down)
        : raster_(raster), origin_(origin), across_(across), down_(down) {}

    void operator()(const LineStep& line) const {
        raster_.Line(At(line.from), At(line.to), line.pen.colour);
    }
    void operator()(const FilledCircleStep& circle) const {
        raster_.Disc(At(circle.centre), circle.radius * across_, circle.radius * down_,
                     circle.fill);
    }
    void operator()(const PolygonStep& polygon) const {
        std::vector<Point> corners;
        for (const Point& corner : polygon.corners) {
            corners.push_back(At(corner));
        }
        raster_.Polygon(corners, polygon.fill);
    }
    void operator()(const TextStep& text) const {
        const Point place = At(text.at);
        raster_.texts_.push_back({static_cast<int>(place.y / 2.0 + 0.5),
                                  static_cast<int>(place.x) - ColumnsBefore(text), text.text});
    }
    void operator()(const TextRowStep& row) const {
        const auto widthOf = [this](const std::string& text) { return WidthOf(text) / across_; };
        for (const TextStep& text : TextsOf(row, widthOf)) {
            (*this)(text);
        }
    }
    void operator()(const PictureStep&) const {}  // a file of a kind that is not read here

private:
    Point At(const Point& point) const {
        return {(point.x - origin_.x) * across_, (point.y - origin_.y) * down_};
    }

    Raster& raster_;
    Point origin_;
    double across_;  // squares in a twip
    double down_;
};

void Raster::Draw(const Drawing& drawing, double width, double height) {
    const Painter painter(*this, {0.0, 0.0}, columns_ / std::max(width, 1.0),
                          2.0 * rows_ / std::max(height, 1.0));
    for (const DrawingStep& step : drawing) {
        std::visit(painter, step);
    }
}

void Raster::DrawWhole(const Drawing& drawing) {
    Extent extent;
    for (const DrawingStep& step : drawing) {
        std::visit(extent, step);
    }
    const Painter painter(*this, extent.least,
                          columns_ / std::max(extent.most.x - extent.least.x, 1.0),
                          2.0 * rows_ / std::max(extent.most.y - extent.least.y, 1.0));
    for (const DrawingStep& step : drawing) {
        std::visit(painter, step);
    }
}

void Raster::Dot(int x, int y, const Colour& colour) {
    if (x >= 0 && x < columns_ && y >= 0 && y < 2 * rows_) {
        dots_[static_cast<std::size_t>(y * columns_ + x)] = colour;
    }
}

void Raster::Line(Point from, Point to, const Colour& colour) {
    const double length = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    const int steps = std::clamp(static_cast<int>(std::ceil(length)), 1, 4000);
    for (int step = 0; step <= steps; ++step) {
        const double part = static_cast<double>(step) / steps;
        Dot(static_cast<int>(std::floor(from.x + part * (to.x - from.x))),
            static_cast<int>(std::floor(from.y + part * (to.y - from.y))), colour);
    }
}

void Raster::Disc(Point centre, double radiusAcross, double radiusDown, const Colour& colour) {
    const double rx = std::max(radiusAcross, 0.5);
    const double ry = std::max(radiusDown, 0.5);
    for (int y = 0; y < 2 * rows_; ++y) {
        for (int x = 0; x < columns_; ++x) {
            const double dx = (x + 0.5 - centre.x) / rx;
            const double dy = (y + 0.5 - centre.y) / ry;
            if (dx * dx + dy * dy <= 1.0) {
                Dot(x, y, colour);
            }
        }
    }
}

void Raster::Polygon(const std::vector<Point>& corners, const Colour& colour) {
    for (int y = 0; y < 2 * rows_; ++y) {
        std::vector<double> crossings;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            if (const auto x = Crossing(corners[i], corners[(i + 1) % corners.size()], y + 0.5)) {
                crossings.push_back(*x);
            }
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            const int last = std::min(columns_, static_cast<int>(std::round(crossings[i + 1])));
            for (int x = std::max(0, static_cast<int>(std::round(crossings[i]))); x < last; ++x) {
                Dot(x, y, colour);
            }
        }
    }
}

void Raster::Put(Cells& cells, CellPlace to, bool inOneColour) const {
    constexpr const char* kShades[] = {"·", "░", "▒", "▓", "█"};
    for (int row = 0; row < rows_; ++row) {
        for (int column = 0; column < columns_; ++column) {
            const auto& upper = dots_[static_cast<std::size_t>(2 * row * columns_ + column)];
            const auto& lower = dots_[static_cast<std::size_t>((2 * row + 1) * columns_ + column)];
            if (!upper && !lower) {
                continue;
            }
            Look look;
            if (inOneColour) {
                const double light = Lightness(upper.value_or(lower.value_or(kBlack)));
                cells.Put(to.row + row, to.column + column,
                          kShades[static_cast<std::size_t>(light * 4.0 + 0.5)], look);
                continue;
            }
            look.ink = upper ? upper : lower;
            look.ground = upper && lower ? lower : std::nullopt;
            cells.Put(to.row + row, to.column + column, upper ? "▀" : "▄", look);
        }
    }
    PutTexts(cells, to);
}

/// Texts are moved inside. One that would run into another is left out: the first one stands.
void Raster::PutTexts(Cells& cells, CellPlace to) const {
    std::vector<Text> put;
    for (Text text : texts_) {
        text.column = std::clamp(text.column, 0, std::max(0, columns_ - WidthOf(text.words)));
        text.row = std::clamp(text.row, 0, rows_ - 1);
        const bool isFree = std::none_of(put.begin(), put.end(), [&text](const Text& other) {
            return other.row == text.row && text.column <= other.column + WidthOf(other.words) &&
                   other.column <= text.column + WidthOf(text.words);
        });
        if (isFree) {
            cells.Put(to.row + text.row, to.column + text.column, text.words, {},
                      columns_ - text.column);
            put.push_back(text);
        }
    }
}

}  // namespace horavex
