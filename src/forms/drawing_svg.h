#pragma once

#include <string>

#include "forms/drawing.h"

namespace horavex {

/// A drawing of the given size in twips as an SVG picture of its own, 15 twips a pixel. Pictures
/// in it are left out, since they are other files.
std::string DrawingSvg(const Drawing& drawing, double width, double height);

}  // namespace horavex
