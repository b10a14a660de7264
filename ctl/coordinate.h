#pragma once

#include <string>

#include "geo/distance.h"

namespace horavex {

/// A coordinate of the command line, "31:15:0E" or without the seconds.
struct CommandCoordinate {
    int degrees;     // 0 or more
    int minutes;     // 0 to 59
    double seconds;  // 0 up to 60
    bool negative;   // south or west
};

/// letters: the positive hemisphere's and the negative's, "NS" or "EW". Refuses the usage for
/// anything else than two or three numbers and one of the letters, and beyond the largest degree.
CommandCoordinate ParseCommandCoordinate(const std::string& text, const std::string& letters,
                                         int largest);

inline constexpr const char* kLatitudeLetters = "NS";
inline constexpr const char* kLongitudeLetters = "EW";
inline constexpr int kLargestLatitude = 90;
inline constexpr int kLargestLongitude = 180;

/// The same as the boxes of the distance window hold it, the sign on each part.
CoordinateTexts TextsOf(const CommandCoordinate& coordinate);

}  // namespace horavex
