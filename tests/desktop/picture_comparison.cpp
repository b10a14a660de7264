#include "desktop/picture_comparison.h"

#include <algorithm>
#include <cstdlib>

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

}  // namespace

PictureDifference Compare(const QImage& kept, const QImage& present) {
    if (kept.size() != present.size()) {
        return {1.0, present};
    }
    PictureDifference difference{0.0, present.convertToFormat(QImage::Format_ARGB32)};
    int differing = 0;
    for (int y = 0; y < present.height(); ++y) {
        for (int x = 0; x < present.width(); ++x) {
            const bool differs = Differ(kept.pixel(x, y), present.pixel(x, y));
            differing += differs ? 1 : 0;
            difference.marked.setPixel(x, y, differs ? kMark : Pale(present.pixel(x, y)));
        }
    }
    difference.share = double(differing) / (double(present.width()) * present.height());
    return difference;
}

}  // namespace horavex
