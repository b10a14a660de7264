#include "desktop/look/contrast.h"

#include <algorithm>
#include <cmath>

namespace horavex::look {

namespace {

double Linear(float part) {
    return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor Over(const QColor& above, const QColor& below) {
    const float part = above.alphaF();
    const auto mixed = [part](float a, float b) { return a * part + b * (1.0F - part); };
    return QColor::fromRgbF(mixed(above.redF(), below.redF()),
                            mixed(above.greenF(), below.greenF()),
                            mixed(above.blueF(), below.blueF()));
}

}  // namespace horavex::look
