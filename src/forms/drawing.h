#pragma once

#include <cstdint>
#include <functional>
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

/// Where the place of a text lies at its upper edge.
enum class Anchor {
    kLeft,
    kMiddle,
    kRight,  // where one that runs from right to left begins
};

struct TextStep {
    Point at;
    std::string text;
    Colour colour = kBlack;
    Anchor anchor = Anchor::kLeft;
};

/// Texts beside each other, of which none may run into the next: all are drawn in their brief form
/// where one would be wider than there is room.
struct TextRowStep {
    struct Entry {
        Point at;
        std::string text;
        std::string brief;
    };
    std::vector<Entry> entries;
    double room;  // of each, twips
    Colour colour = kBlack;
};

/// The texts of a row as they fit. widthOf: of a text, in twips.
std::vector<TextStep> TextsOf(const TextRowStep& row,
                              const std::function<double(const std::string&)>& widthOf);

/// A picture by its name, stretched to the given size in twips.
struct PictureStep {
    Point at;
    double width;
    double height;
    std::string name;
};

using DrawingStep =
    std::variant<LineStep, FilledCircleStep, PolygonStep, TextStep, TextRowStep, PictureStep>;

/// What lies on a form or picture, from the first drawn to the last.
using Drawing = std::vector<DrawingStep>;

}  // namespace horavex
