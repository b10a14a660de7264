#pragma once

#include <span>

#include "config/authorities.h"
#include "store/text_entry.h"

namespace horavex {

/// A published convention that defines both twilights by an angle.
struct Method {
    TextEntry name;
    double fajrAngle;  // degrees, in quarters
    double ishaAngle;  // likewise
    const Authority* authority = nullptr;
};

/// The conventions in the order of the list, with the angles of their authorities. Those that
/// define Isha by minutes after sunset, or Maghrib by an angle of its own, are none of these.
std::span<const Method> Methods();

/// Whether both angles lie within the range of the windows, limits included.
bool FitsBand(const Method& method);

}  // namespace horavex
