#pragma once

#include <string>

#include "forms/drawing.h"

namespace horavex {

/// Whether a path ends with the name of a format of pictures: .svg or .png.
bool IsDrawingPath(const std::string& path);

/// Replaces or makes the file: a PNG where its path ends so, else an SVG. Size in twips. Throws
/// FileFault, and Fault for a PNG where nothing is installed that draws one.
void WriteDrawing(const std::string& path, const Drawing& drawing, double width, double height);

}  // namespace horavex
