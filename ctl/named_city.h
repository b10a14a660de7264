#pragma once

#include <cstdint>
#include <string>

namespace horavex {

// Cities as they are named at the command line. Each gives a CityIndex and refuses the usage where
// there is no such city.

/// By its name or a part of it; behind a comma its province, its country or both, a country by its
/// code, too. Of cities that share a name the one that is by far the best known, or the best known
/// where it alone is written as typed; where none is, the candidates go to standard error and the
/// usage is refused.
std::int16_t CityOfText(const std::string& text);

/// By its number.
std::int16_t CityOfIndex(int index);

/// The one nearest to a point "51.5,-0.12", degrees, north and east positive.
std::int16_t CityNear(const std::string& point);

}  // namespace horavex
