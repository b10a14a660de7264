#pragma once

#include <QPainterPath>

namespace horavex {

/// The lit part of the moon's disc around the origin. litPart: 0 to 1. limb: where its lit edge
/// points, degrees clockwise from up.
QPainterPath LitMoon(double radius, double litPart, double limb);

}  // namespace horavex
