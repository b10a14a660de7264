#pragma once

#include <string>

#include "forms/drawing.h"

namespace horavex {

/// Writes a drawing of the given size in twips as a PNG, with two pixels to a side for each of the
/// screen. Needs an application of the toolkit, if only one without a display, for its fonts.
/// Throws FileFault.
void WritePng(const std::string& path, const Drawing& drawing, double width, double height);

}  // namespace horavex
