#pragma once

#include <string_view>

#include "config/authorities.h"
#include "store/options.h"

namespace horavex {

// What is proposed for a place as long as nobody has chosen.

/// The method that is usual in a country; where none is known, that of the Muslim World League.
const Authority& UsualAuthority(std::string_view country);

/// The rule for nights without twilight: a seventh of the night beyond 48 degrees of latitude, the
/// middle of the night up to there, where it hardly ever has a say. latitude: degrees.
HighLatitudeRule UsualHighLatitudeRule(double latitude);

}  // namespace horavex
