#include "forms/drawing_svg.h"

#include <cstdio>

#include "base/number_text.h"
#include "base/rounding.h"
#include "base/utf8.h"

namespace horavex {

namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr double kTextSize = 12.0;    // pixels
constexpr double kTextAscent = 11.0;  // pixels

std::string Pixels(double twips) {
    return NumberToText(RoundToPlaces(twips / kTwipsPerPixel, 2));
}

std::string Hex(const Colour& colour) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text;
}

std::string Stroke(const Pen& pen) {
    return " stroke=\"" + Hex(pen.colour) + "\" stroke-width=\"" + std::to_string(pen.width) + "\"";
}

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&') {
            escaped += "&amp;";
        } else if (c == '<') {
            escaped += "&lt;";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

/// In twips, by the letters of a usual font: which one will draw it is not known here.
double UsualWidth(const std::string& text) {
    constexpr double kLetter = 0.6;  // of the size
    return static_cast<double>(Utf8Length(text)) * kLetter * kTextSize * kTwipsPerPixel;
}

std::string AnchorOf(const TextStep& text) {
    switch (text.anchor) {
        case Anchor::kLeft:
            return "";
        case Anchor::kMiddle:
            return " text-anchor=\"middle\"";
        case Anchor::kRight:
            break;
    }
    return " direction=\"rtl\"";  // begins there
}

struct StepWriter {
    std::string operator()(const LineStep& line) const {
        return "<line x1=\"" + Pixels(line.from.x) + "\" y1=\"" + Pixels(line.from.y) + "\" x2=\"" +
               Pixels(line.to.x) + "\" y2=\"" + Pixels(line.to.y) + "\"" + Stroke(line.pen) +
               "/>\n";
    }

    std::string operator()(const FilledCircleStep& circle) const {
        return "<circle cx=\"" + Pixels(circle.centre.x) + "\" cy=\"" + Pixels(circle.centre.y) +
               "\" r=\"" + Pixels(circle.radius) + "\" fill=\"" + Hex(circle.fill) + "\"" +
               Stroke(circle.pen) + "/>\n";
    }

    std::string operator()(const PolygonStep& polygon) const {
        std::string corners;
        for (const Point& corner : polygon.corners) {
            corners += (corners.empty() ? "" : " ") + Pixels(corner.x) + "," + Pixels(corner.y);
        }
        return "<polygon points=\"" + corners + "\" fill=\"" + Hex(polygon.fill) + "\"" +
               Stroke(polygon.pen) + "/>\n";
    }

    std::string operator()(const TextStep& text) const {
        return "<text x=\"" + Pixels(text.at.x) + "\" y=\"" +
               Pixels(text.at.y + kTextAscent * kTwipsPerPixel) + "\" fill=\"" + Hex(text.colour) +
               "\"" + AnchorOf(text) + ">" + Escaped(text.text) + "</text>\n";
    }

    std::string operator()(const TextRowStep& row) const {
        std::string svg;
        for (const TextStep& text : TextsOf(row, UsualWidth)) {
            svg += (*this)(text);
        }
        return svg;
    }

    std::string operator()(const PictureStep&) const { return {}; }
};

}  // namespace

std::string DrawingSvg(const Drawing& drawing, double width, double height) {
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + Pixels(width) +
                      " " + Pixels(height) + "\" font-family=\"sans-serif\" font-size=\"" +
                      NumberToText(kTextSize) + "\">\n";
    for (const DrawingStep& step : drawing) {
        svg += std::visit(StepWriter(), step);
    }
    return svg + "</svg>\n";
}

}  // namespace horavex
