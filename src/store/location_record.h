#pragma once

#include <cstdint>
#include <string>

namespace horavex {

struct CityRecord {
    std::string Name;
    std::string Province;            // empty when none
    std::int16_t Latitude = 0;       // degrees x 100, north positive
    std::int16_t Longitude = 0;      // degrees x 100, east positive
    std::int16_t ProvinceIndex = 0;  // record of the province index, 0 for none
};

struct LocationRecord {
    std::string Country;
    CityRecord City;
};

struct CountryRecord {
    std::string Name;
    std::int16_t FirstCity = 0;  // CityIndex of the first of its cities, which are consecutive
    std::int16_t CityCount = 0;
};

/// The working place and its text: city, comma and province if any, " - " and the country.
extern LocationRecord Location;
extern std::string CityText;

/// The place that was last accepted.
extern LocationRecord ActiveLocation;
extern std::string ActiveCityText;

}  // namespace horavex
