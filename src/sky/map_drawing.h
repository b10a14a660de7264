#pragma once

#include <string>

#include "forms/drawing.h"
#include "sky/class_words.h"
#include "sky/horizon.h"
#include "sky/visibility_map.h"

namespace horavex {

/// The size of a drawn map, twips.
inline constexpr double kMapWidth = 10800.0;
inline constexpr double kMapHeight = 5490.0;

/// What stands beside the map, in a language.
struct MapText {
    std::string title;
    std::string newMoon;
    ClassWords classes;
    bool rightToLeft = false;  // the words; they begin at the right edge then
};

/// The map with two lines above it, the classes of a criterion below, and the mark of a place.
/// Rows that are not worked out yet are left as sea. Without its file the lands are left out.
Drawing MapDrawing(const VisibilityMap& map, Criterion criterion, const Observer& place,
                   const MapText& text);

}  // namespace horavex
