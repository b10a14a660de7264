#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_store.h"

namespace horavex {

/// The other names of all cities in the order of their index, those of one city joined by commas,
/// best known first, kept in a store. An aid of searching: where "Dat/N.DAT" is missing there are
/// none. Throws FileFault for a file that cannot be read, and BoundsFault for one that has not one
/// line for each of cityCount cities.
std::vector<std::string_view> ReadOtherNames(std::int64_t cityCount, TextStore& texts);

/// Those of one city. Throws as the above and as the readers of the city files, and BoundsFault for
/// an index that no city has.
std::string OtherNamesOf(std::int16_t cityIndex);

}  // namespace horavex
