#pragma once

#include <optional>

#include "forms/drawing.h"

namespace horavex {

/// The compass of the qibla window in an area of the given size, twips; the lowest 2000 are left to
/// the texts. Its needle points at the qibla. Bearings are radians from north, positive to the
/// east; the sun is left out where it has none.
Drawing QiblaCompass(double width, double height, double qibla, std::optional<double> sun);

}  // namespace horavex
