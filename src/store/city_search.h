#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// One city of the database, with what a search needs.
struct ListedCity {
    std::int16_t cityIndex;
    std::string name;
    std::string province;  // empty when none
    std::string country;
    std::int16_t latitude;   // degrees x 100, north positive
    std::int16_t longitude;  // degrees x 100, east positive
    std::uint16_t rank;      // by population, 1 for the largest; 0 where "Dat/RI.DAT" has none
    std::string folded;      // "name, province - country" for comparing
    // Written by SetOtherNames:
    std::string otherNames;        // joined by commas, best known first
    std::string foldedNames;       // the same for comparing, with a comma at both ends
    std::uint64_t beginnings = 0;  // a bit for the first two bytes of each folded name
};

/// "name, province - country", as a list of cities of all countries shows it.
std::string DisplayText(const ListedCity& city);

/// Gives a city its other names, and what a search compares: in these apostrophes do not count,
/// and a hyphen is a blank.
void SetOtherNames(ListedCity& city, const std::string& otherNames);

/// All cities in the order of CityIndex. Throws as the readers of the location files do, and
/// BoundsFault for countries that hold more cities than there are. Ranks or other names that cannot
/// be read are none.
std::vector<ListedCity> ListCities();

/// A city that a search found. Both pointers live as long as the list.
struct CityHit {
    const ListedCity* city;
    std::string_view otherName;  // the one of its other names that matches; empty for its own name
};

/// "name, province - country", and in brackets the other name that matches.
std::string DisplayText(const CityHit& hit);

/// The cities that match a typed text, best first: the whole name, be it another name of one of the
/// 5,000 largest cities; the own name's beginning at a word's end, then its beginning; a whole
/// other name, then the beginning of one; a word's beginning anywhere in name, province or country,
/// and any part of these. Letter case and accents do not matter; equal matches come by population,
/// those without a rank last. Of two other names that match alike the better known one counts; a
/// single Latin letter begins too many of them to look there. An empty text matches nothing.
std::vector<CityHit> SearchCities(const std::vector<ListedCity>& cities, const std::string& text);

}  // namespace horavex
