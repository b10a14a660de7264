#include "desktop/face/moon_disc.h"

#include <QTransform>

namespace horavex {

namespace {

// The toolkit counts angles from the right, and counter-clockwise.
constexpr double kBottom = -90.0;
constexpr double kHalfTurn = 180.0;

QRectF Around(double width, double height) {
    return {-width, -height, 2.0 * width, 2.0 * height};
}

}  // namespace

// Half a circle on the lit side, closed by the half of an ellipse that the border of light is; it
// bulges to the dark side from the half moon on.
QPainterPath LitMoon(double radius, double litPart, double limb) {
    const double bulge = 2.0 * litPart - 1.0;  // of the ellipse to the dark side, -1 to 1
    QPainterPath lit;
    lit.moveTo(0.0, radius);
    lit.arcTo(Around(radius, radius), kBottom, kHalfTurn);
    const QRectF border = Around(radius * std::abs(bulge), radius);
    lit.arcTo(border, -kBottom, bulge < 0.0 ? -kHalfTurn : kHalfTurn);
    lit.closeSubpath();
    return QTransform().rotate(limb + kBottom).map(lit);  // it is drawn with its limb to the right
}

}  // namespace horavex
