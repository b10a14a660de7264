#pragma once

#include <cstdint>
#include <string>
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
};

/// "name, province - country", as a list of cities of all countries shows it.
std::string DisplayText(const ListedCity& city);

/// All cities in the order of CityIndex. Throws as the readers of the location files do, and
/// BoundsFault for countries that hold more cities than there are.
std::vector<ListedCity> ListCities();

/// The cities that match a typed text, best first: the whole name, then its beginning at a word's
/// end, its beginning, a word's beginning anywhere in name, province or country, and any part.
/// Letter case and accents do not matter; equal matches come by population, those without a rank
/// last. An empty text matches nothing. The pointers live as long as the list.
std::vector<const ListedCity*> SearchCities(const std::vector<ListedCity>& cities,
                                            const std::string& text);

}  // namespace horavex
