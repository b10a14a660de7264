#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/bytes.h"

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

/// A name as searches compare other names: letter case, accents and apostrophes do not count, and a
/// hyphen is a blank.
std::string FoldCityName(const std::string& name);

/// All cities in the order of CityIndex. Throws as the readers of the location files do, and
/// BoundsFault for countries that hold more cities than there are. Ranks or other names that cannot
/// be read are none.
std::vector<ListedCity> ListCities();

/// Those at some places of that list, counted from 0, which rise. otherNames: the whole of the file
/// of other names, which is sound.
std::vector<ListedCity> ListCitiesAt(const std::vector<std::uint16_t>& places, ByteView otherNames);

}  // namespace horavex
