#pragma once

#include <string>

namespace horavex {

/// Opens the distance window in front of the face and returns when it is closed.
void ShowDistance();

/// The two cities of the window.
enum class DistanceCity { kA, kB };

/// Takes a picked city over: its name into the label, its coordinates, in the words that the
/// settings window shows them with, into the boxes. Coordinates that are not in English words
/// leave 0 in the boxes and the hemisphere as it was.
void FillPickedCity(DistanceCity city, const std::string& name, const std::string& latitude,
                    const std::string& longitude);

}  // namespace horavex
