#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace horavex {

struct Colour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;

    bool operator==(const Colour&) const = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

/// A place in the scale units of what is drawn on: twips, x to the right, y downward.
struct Point {
    double x;
    double y;

    bool operator==(const Point&) const = default;
};

struct Pen {
    Colour colour = kBlack;
    int width = 1;  // pixels, 1 or more

    bool operator==(const Pen&) const = default;
};

struct LineStep {
    Point from;
    Point to;
    Pen pen = {};
};

struct FilledCircleStep {
    Point centre;
    double radius;  // twips
    Colour fill;
    Pen pen = {};
};

/// Closed: the last corner is joined to the first.
struct PolygonStep {
    std::vector<Point> corners;
    Colour fill;
    Pen pen = {};
};

/// at is the upper left corner of the text.
struct TextStep {
    Point at;
    std::string text;
    Colour colour = kBlack;
};

/// A picture by its name, stretched to the given size in twips.
struct PictureStep {
    Point at;
    double width;
    double height;
    std::string name;
};

using DrawingStep = std::variant<LineStep, FilledCircleStep, PolygonStep, TextStep, PictureStep>;

/// What lies on a form or picture, from the first drawn to the last.
using Drawing = std::vector<DrawingStep>;

}  // namespace horavex
