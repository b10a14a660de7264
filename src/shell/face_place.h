#pragma once

#include <string>

namespace horavex {

// What the face tells of its place beside its variables.

/// The accepted place, behind its own name in the script of the pack where the files have one.
std::string PlaceOfFace();

/// Both offsets in a line where the city's own zone counts and this computer's clock is another;
/// else empty.
std::string ClocksOfFace();

}  // namespace horavex
