#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/city_list.h"

namespace horavex {

/// A city that a search found. Both pointers live as long as the list.
struct CityHit {
    const ListedCity* city;
    std::string_view otherName;  // the one of its other names that matches; empty for its own name
    bool isWholeName = false;    // the best of matches
};

/// "name, province - country", and in brackets the other name that matches.
std::string DisplayText(const CityHit& hit);

/// The cities that match a typed text, best first: the whole name, be it another name of one of the
/// 5,000 largest cities; the own name's beginning at a word's end, then its beginning; a whole
/// other name, then the beginning of one; a word's beginning anywhere in name, province or country,
/// and any part of these. Letter case and accents do not matter; equal matches come by population,
/// those without a rank last. Of two other names that match alike the better known one counts; a
/// single Latin letter begins too many of them to look there. An empty text matches nothing.
std::vector<CityHit> SearchCities(Cities cities, const std::string& text);

}  // namespace horavex
