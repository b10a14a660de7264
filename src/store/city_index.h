#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/bytes.h"
#include "store/city_list.h"

namespace horavex {

// "Dat/NI.DAT": where in the list of all cities a name stands, so that one that is typed whole
// needs no look at all of them. An aid of searching alone.

/// The cities whose own or other name a typed name may be as a whole, as ListCities has them and in
/// its order, perhaps with some whose names it is not. None where the file is missing, damaged or
/// not of the location files that are there: then all are to be searched.
std::optional<CityList> CitiesThatMayBe(const std::string& name);

/// The content of the file for the location files that are there. Throws as ListCities does.
Bytes MakeCityIndex();

}  // namespace horavex
