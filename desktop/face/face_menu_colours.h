#pragma once

#include <QPalette>

namespace horavex {

/// The face's menus are in its colours by night.
QPalette FaceMenuColours();

}  // namespace horavex
