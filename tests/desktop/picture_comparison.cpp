#include "desktop/picture_comparison.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

namespace horavex {

namespace {

constexpr int kStep = 16;  // of 255
constexpr QRgb kMark = 0xffff0000;

bool Differ(QRgb first, QRgb second) {
    return std::max({std::abs(qRed(first) - qRed(second)), std::abs(qGreen(first) - qGreen(second)),
                     std::abs(qBlue(first) - qBlue(second)),
                     std::abs(qAlpha(first) - qAlpha(second))}) > kStep;
}

QRgb Pale(QRgb dot) {
    const auto pale = [](int colour) { return 255 - (255 - colour) / 4; };
    return qRgb(pale(qRed(dot)), pale(qGreen(dot)), pale(qBlue(dot)));
}

constexpr int kSquare = 32;  // dots

/// How many dots differ in each square, by its upper left corner in halves of a square.
using Squares = std::map<std::pair<int, int>, int>;

/// Counts a dot in the four squares that it lies in.
void Count(int x, int y, Squares& squares) {
    constexpr int kHalf = kSquare / 2;
    for (const int left : {x / kHalf - 1, x / kHalf}) {
        for (const int top : {y / kHalf - 1, y / kHalf}) {
            ++squares[{left, top}];
        }
    }
}

}  // namespace

PictureDifference Compare(const QImage& kept, const QImage& present) {
    if (kept.size() != present.size()) {
        return {kSquare * kSquare, present};
    }
    PictureDifference difference{0, present.convertToFormat(QImage::Format_ARGB32)};
    Squares squares;
    for (int y = 0; y < present.height(); ++y) {
        for (int x = 0; x < present.width(); ++x) {
            const bool differs = Differ(kept.pixel(x, y), present.pixel(x, y));
            if (differs) {
                Count(x, y, squares);
            }
            difference.marked.setPixel(x, y, differs ? kMark : Pale(present.pixel(x, y)));
        }
    }
    for (const auto& [corner, dots] : squares) {
        difference.dots = std::max(difference.dots, dots);
    }
    return difference;
}

}  // namespace horavex
